#include "keys.h"

#include <windows.h>

#include <algorithm>
#include <cctype>
#include <string>

#include "arguments.h"

namespace gallery {

namespace {

struct NamedKey {
    std::string_view name;
    unsigned char nKey;
};

constexpr NamedKey kKeys[] = {
    {"left", VK_LEFT},     {"right", VK_RIGHT},  {"up", VK_UP},        {"down", VK_DOWN},
    {"escape", VK_ESCAPE}, {"enter", VK_RETURN}, {"tab", VK_TAB},      {"space", VK_SPACE},
    {"home", VK_HOME},     {"end", VK_END},      {"pageup", VK_PRIOR}, {"pagedown", VK_NEXT},
    {"delete", VK_DELETE},
};

std::string Lower(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return lower;
}

}  // namespace

std::optional<unsigned char> KeyFromName(std::string_view name) {
    const std::string lower = Lower(name);
    for (const NamedKey& key : kKeys)
        if (key.name == lower) return key.nKey;
    if (lower.size() == 1 && std::isalnum(static_cast<unsigned char>(lower[0])))
        return static_cast<unsigned char>(std::toupper(static_cast<unsigned char>(lower[0])));
    if (lower.starts_with('f'))
        if (const std::optional<int> nNumber = ParseInt(std::string_view(lower).substr(1), 1, 12))
            return static_cast<unsigned char>(VK_F1 + *nNumber - 1);
    return std::nullopt;
}

}  // namespace gallery
