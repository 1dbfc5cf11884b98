/// Handles of the layer: an index and a generation packed into an opaque pointer, so that a stale, invented
/// or foreign handle is recognised and never dereferenced.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

namespace tavlon::win32 {

/// Owns objects of type T by handle. `kTag` (1..15) keeps the handles of different tables apart.
/// Layout, from bit 2 up: 20 bits index, 20 bits generation, 4 bits tag; bits 0 and 1 are clear, so no
/// handle is mistaken for a small integer such as a resource id or a colour index.
template <class T, unsigned kTag>
class HandleTable {
public:
    void* Add(std::unique_ptr<T> object) {
        std::size_t index = 0;
        if (m_free.empty()) {
            if (m_slots.size() > kIndexMask) return nullptr;
            index = m_slots.size();
            m_slots.emplace_back();
        } else {
            index = m_free.back();
            m_free.pop_back();
        }
        Slot& slot = m_slots[index];
        slot.object = std::move(object);
        ++m_live;
        return Pack(index, slot.generation);
    }

    /// The object, or null for a handle that is not alive in this table.
    T* Get(const void* handle) const {
        const auto bits = reinterpret_cast<std::uintptr_t>(handle);
        const std::size_t index = (bits >> 2) & kIndexMask;
        if (index >= m_slots.size()) return nullptr;
        const Slot& slot = m_slots[index];
        return slot.object && Pack(index, slot.generation) == handle ? slot.object.get() : nullptr;
    }

    /// Takes the object out; the handle is dead from now on. Null when it was not alive.
    std::unique_ptr<T> Remove(const void* handle) {
        if (!Get(handle)) return nullptr;
        const std::size_t index = (reinterpret_cast<std::uintptr_t>(handle) >> 2) & kIndexMask;
        Slot& slot = m_slots[index];
        slot.generation = (slot.generation + 1) & kGenerationMask;
        m_free.push_back(index);
        --m_live;
        return std::move(slot.object);
    }

    std::size_t Live() const { return m_live; }

    /// Calls visit(handle, object) for every live object, in slot order. visit must not add or remove.
    template <class Visit>
    void ForEach(Visit visit) const {
        for (std::size_t i = 0; i < m_slots.size(); ++i)
            if (m_slots[i].object) visit(Pack(i, m_slots[i].generation), *m_slots[i].object);
    }

private:
    static constexpr std::uintptr_t kIndexMask = 0xfffff;
    static constexpr std::uintptr_t kGenerationMask = 0xfffff;

    struct Slot {
        std::unique_ptr<T> object;
        std::uintptr_t generation = 1;
    };

    static void* Pack(std::size_t index, std::uintptr_t generation) {
        return reinterpret_cast<void*>((static_cast<std::uintptr_t>(index) << 2) | (generation << 22) |
                                       (static_cast<std::uintptr_t>(kTag) << 42));
    }

    std::vector<Slot> m_slots;
    std::vector<std::size_t> m_free;
    std::size_t m_live = 0;
};

/// Which table a handle belongs to.
enum HandleTag : unsigned {
    kTagDc = 1,
    kTagGdiObject = 2,
    kTagWindow = 3,
    kTagMenu = 4,
    kTagCursor = 5,
    kTagModule = 6,
    kTagResource = 7,
    kTagHook = 8,
};

}  // namespace tavlon::win32
