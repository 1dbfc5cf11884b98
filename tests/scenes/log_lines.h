/// Writes answers down, a line each.
#pragma once

#include <windows.h>

#include <string>

namespace scenes {

class LogLines {
public:
    explicit LogLines(std::string& log) : m_log(log) {}

    /// "name value"
    void Say(const std::string& name, long long value) { m_log += name + " " + std::to_string(value) + "\n"; }
    void Say(const std::string& name, const RECT& rc) {
        m_log += name + " (" + std::to_string(rc.left) + ", " + std::to_string(rc.top) + ", " +
                 std::to_string(rc.right) + ", " + std::to_string(rc.bottom) + ")\n";
    }
    void Say(const std::string& name, POINT pt) {
        m_log += name + " (" + std::to_string(pt.x) + ", " + std::to_string(pt.y) + ")\n";
    }

private:
    std::string& m_log;
};

}  // namespace scenes
