#include "kernel/menu_resource.h"

#include "kernel/code_page.h"
#include "kernel/module_table.h"

namespace tavlon::win32 {
namespace {

constexpr WORD kLastItem = 0x80;
constexpr int kMaxDepth = 16;

std::string ReadText(ByteReader& reader) {
    std::u32string text;
    for (WORD unit = reader.Word(); reader.Ok() && unit != 0; unit = reader.Word()) text.push_back(unit);
    return EncodeCodePage936(text);
}

bool ReadItems(ByteReader& reader, std::vector<MenuTemplateItem>& items, int depth);

bool ReadItem(ByteReader& reader, MenuTemplateItem& item, int depth) {
    if (!(item.flags & MF_POPUP)) item.id = reader.Word();
    item.text = ReadText(reader);
    if (item.flags & MF_POPUP) return ReadItems(reader, item.children, depth + 1);
    if (item.id == 0 && item.text.empty()) item.flags |= MF_SEPARATOR;
    return reader.Ok();
}

bool ReadItems(ByteReader& reader, std::vector<MenuTemplateItem>& items, int depth) {
    if (depth > kMaxDepth) return false;
    for (bool last = false; !last;) {
        MenuTemplateItem item;
        const WORD flags = reader.Word();
        last = (flags & kLastItem) != 0;
        item.flags = flags & ~UINT{kLastItem};
        if (!reader.Ok() || !ReadItem(reader, item, depth)) return false;
        items.push_back(std::move(item));
    }
    return true;
}

}  // namespace

std::optional<std::vector<MenuTemplateItem>> LoadMenuTemplate(HINSTANCE hInstance, LPCSTR pszName) {
    const Bytes bytes = FindResourceBytes(hInstance, pszName, RT_MENU);
    ByteReader reader(bytes);
    std::vector<MenuTemplateItem> items;
    const bool classic = reader.Word() == 0;
    reader.Skip(reader.Word());  // room for a longer header
    if (!classic || !reader.Ok() || !ReadItems(reader, items, 0)) return std::nullopt;
    return items;
}

}  // namespace tavlon::win32
