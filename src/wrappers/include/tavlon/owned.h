#pragma once

#include <memory>
#include <utility>

/// A wrapper's share of its control; copies share it, and the last one to go destroys it. Destroying a
/// control tells the host, which may then use the very wrapper that lets it go: so an Owned is empty, or has
/// its new control, before it lets the old one go.
template <class Control>
class Owned {
public:
    Owned() = default;
    explicit Owned(std::shared_ptr<Control> pControl) noexcept : m_pControl(std::move(pControl)) {}
    Owned(const Owned&) = default;
    Owned& operator=(const Owned& other) noexcept {
        std::shared_ptr<Control> pLetGo = other.m_pControl;
        m_pControl.swap(pLetGo);
        return *this;
    }
    ~Owned() { const std::shared_ptr<Control> pLetGo = std::move(m_pControl); }

    explicit operator bool() const noexcept { return m_pControl != nullptr; }
    Control& operator*() const noexcept { return *m_pControl; }

private:
    std::shared_ptr<Control> m_pControl;
};
