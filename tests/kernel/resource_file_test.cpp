// Compiled resource files handed to the native layer; on Windows the module loader has their place.
#if __has_include(<win32/module.h>)

#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

using Data = std::vector<unsigned char>;

/// Builds a .res file as a resource compiler would.
class ResourceFile {
public:
    ResourceFile() { Add(0, 0, {}, true); }

    ResourceFile& Add(WORD nType, WORD nName, const Data& data, bool bSignature = false) {
        Put32(static_cast<DWORD>(data.size()));
        Put32(32);
        for (const WORD n : {nType, nName}) Put16(0xffff), Put16(n);
        for (int i = 0; i < 4; ++i) Put32(bSignature ? 0 : 1);
        return AddData(data);
    }
    ResourceFile& AddNamed(WORD nType, const std::u16string& name, const Data& data) {
        const std::size_t cbName = 2 * (name.size() + 1), cbPad = (4 - cbName % 4) % 4;
        Put32(static_cast<DWORD>(data.size()));
        Put32(static_cast<DWORD>(8 + 4 + cbName + cbPad + 16));
        Put16(0xffff), Put16(nType);
        for (const char16_t c : name) Put16(c);
        Put16(0);
        if (cbPad) Put16(0);
        for (int i = 0; i < 4; ++i) Put32(0);
        return AddData(data);
    }
    Data bytes;

private:
    void Put16(unsigned n) { bytes.push_back(n & 0xff), bytes.push_back(n >> 8 & 0xff); }
    void Put32(DWORD n) { Put16(n & 0xffff), Put16(n >> 16); }
    ResourceFile& AddData(const Data& data) {
        bytes.insert(bytes.end(), data.begin(), data.end());
        bytes.resize((bytes.size() + 3) / 4 * 4);
        return *this;
    }
};

/// A registered module on a copy of exactly the file's size, so that a read past its end is noticed.
class TestModule {
public:
    explicit TestModule(const Data& file) : m_bytes(new unsigned char[file.size() + (file.empty() ? 1 : 0)]) {
        std::copy(file.begin(), file.end(), m_bytes.get());
        const ModuleImage image{"resource_test.dll", m_bytes.get(), file.size()};
        hModule = RegisterModule(&image);
    }
    ~TestModule() { UnregisterModule(hModule); }
    HMODULE hModule;

private:
    std::unique_ptr<unsigned char[]> m_bytes;
};

Data Words(const std::vector<unsigned>& words) {
    Data data;
    for (const unsigned n : words) data.push_back(n & 0xff), data.push_back(n >> 8 & 0xff);
    return data;
}

/// A DIB of the given depth; rows are padded here.
Data Dib(int cx, int cy, int nBits, const std::vector<DWORD>& palette, const std::vector<Data>& rows) {
    Data dib = Words({40, 0, static_cast<unsigned>(cx), 0, static_cast<unsigned>(cy),
                      static_cast<unsigned>(cy) >> 16, 1, static_cast<unsigned>(nBits)});
    dib.resize(32);
    for (const DWORD n : {static_cast<DWORD>(palette.size()), DWORD{0}})
        for (int i = 0; i < 4; ++i) dib.push_back(n >> (8 * i) & 0xff);
    for (const DWORD clr : palette)
        for (int i = 0; i < 4; ++i) dib.push_back(clr >> (8 * i) & 0xff);
    for (Data row : rows) {
        row.resize((row.size() + 3) / 4 * 4);
        dib.insert(dib.end(), row.begin(), row.end());
    }
    return dib;
}

/// The pixels of a bitmap, row by row, as "RRGGBB ".
std::string Pixels(HBITMAP hBitmap) {
    BITMAP info{};
    if (!GetObjectA(hBitmap, sizeof info, &info)) return "none";
    const HDC hdc = CreateCompatibleDC(nullptr);
    const HGDIOBJ hOld = SelectObject(hdc, hBitmap);
    std::string out;
    for (int y = 0; y < info.bmHeight; ++y)
        for (int x = 0; x < info.bmWidth; ++x) {
            char szPixel[16];
            const COLORREF clr = GetPixel(hdc, x, y);
            snprintf(szPixel, sizeof szPixel, "%02X%02X%02X ", GetRValue(clr), GetGValue(clr),
                     GetBValue(clr));
            out += szPixel;
        }
    SelectObject(hdc, hOld);
    DeleteDC(hdc);
    DeleteObject(hBitmap);
    return out;
}

TEST(ResourceFile, FindsByNumberAndByName) {
    ResourceFile file;
    file.Add(10, 7, {1, 2, 3}).AddNamed(10, u"Sound", {4}).AddNamed(10, u"ab", {5, 6});
    const TestModule module(file.bytes);
    ASSERT_NE(nullptr, module.hModule);
    struct Case {
        LPCSTR pszName;
        DWORD cbWant;
    };
    for (const Case& c : {Case{MAKEINTRESOURCEA(7), 3}, Case{"#7", 3}, Case{"sound", 1}, Case{"SOUND", 1},
                          Case{"ab", 2}, Case{"sounds", 0}, Case{"#8", 0}, Case{MAKEINTRESOURCEA(8), 0}}) {
        const HRSRC hResource = FindResourceA(module.hModule, c.pszName, MAKEINTRESOURCEA(10));
        EXPECT_EQ(c.cbWant, SizeofResource(module.hModule, hResource));
        EXPECT_EQ(c.cbWant != 0, hResource != nullptr);
        if (!hResource) {
            EXPECT_EQ(ERROR_RESOURCE_NAME_NOT_FOUND, GetLastError());
        }
    }
    EXPECT_EQ(nullptr, FindResourceA(module.hModule, MAKEINTRESOURCEA(7), RT_BITMAP));
    EXPECT_EQ(ERROR_RESOURCE_TYPE_NOT_FOUND, GetLastError());
    const HRSRC hSound = FindResourceA(module.hModule, "sound", MAKEINTRESOURCEA(10));
    EXPECT_EQ(4, *static_cast<unsigned char*>(LockResource(LoadResource(module.hModule, hSound))));
}

TEST(ResourceFile, HandlesDieWithTheModule) {
    ResourceFile file;
    file.Add(10, 7, {1});
    HRSRC hResource = nullptr;
    HMODULE hModule = nullptr;
    {
        const TestModule module(file.bytes);
        hModule = module.hModule;
        hResource = FindResourceA(hModule, MAKEINTRESOURCEA(7), MAKEINTRESOURCEA(10));
        for (const char* pszName : {"Resource_Test", "resource_test.DLL"})
            EXPECT_EQ(hModule, GetModuleHandleA(pszName)) << pszName;
    }
    EXPECT_EQ(nullptr, GetModuleHandleA("resource_test"));
    EXPECT_EQ(nullptr, FindResourceA(hModule, MAKEINTRESOURCEA(7), MAKEINTRESOURCEA(10)));
    EXPECT_EQ(nullptr, LoadResource(hModule, hResource));
    EXPECT_EQ(nullptr, LockResource(hResource));
    EXPECT_EQ(0u, SizeofResource(nullptr, hResource));
    UnregisterModule(hModule);
    UnregisterModule(GetModuleHandleA(nullptr));
    EXPECT_NE(nullptr, GetModuleHandleA(nullptr));
    const ModuleImage nothing{"x", nullptr, 0}, nameless{nullptr, "", 0};
    for (const ModuleImage* pImage : {static_cast<const ModuleImage*>(nullptr), &nothing, &nameless})
        EXPECT_EQ(nullptr, RegisterModule(pImage));
}

TEST(ResourceFile, CutShort) {
    ResourceFile file;
    file.Add(10, 7, {1, 2, 3, 4, 5}).AddNamed(2, u"Name", {6});
    for (std::size_t cb = 0; cb < file.bytes.size(); ++cb) {
        const TestModule module(
            Data(file.bytes.begin(), file.bytes.begin() + static_cast<std::ptrdiff_t>(cb)));
        const bool bBetweenEntries = cb == 32 || (cb > 68 && cb <= 72);
        const bool bPaddingOnly = cb > file.bytes.size() - 4 && cb < file.bytes.size();
        EXPECT_EQ(bBetweenEntries || bPaddingOnly, module.hModule != nullptr) << cb;
    }
}

TEST(ResourceFile, AnyByteMayLie) {
    ResourceFile file;
    file.Add(10, 7, {1, 2, 3, 4, 5}).AddNamed(2, u"Name", {6});
    for (std::size_t i = 0; i < file.bytes.size(); ++i)
        for (const int n : {0, 1, 0x7f, 0xff}) {
            Data changed = file.bytes;
            changed[i] = static_cast<unsigned char>(n);
            const TestModule module(changed);
            LoadBitmapA(module.hModule, "Name");
            FindResourceA(module.hModule, MAKEINTRESOURCEA(7), MAKEINTRESOURCEA(10));
        }
}

TEST(BitmapResource, Depths) {
    struct Case {
        const char* pszName;
        Data dib;
        const char* pszWant;
    };
    const std::vector<Case> cases = {
        {"one bit, bottom row first", Dib(2, 2, 1, {0x102030, 0x405060}, {{0x40}, {0x80}}),
         "405060 102030 102030 405060 "},
        {"four bits", Dib(3, 1, 4, {0x000001, 0x000002, 0x000003}, {{0x21, 0x00}}), "000003 000002 000001 "},
        {"eight bits, index without colour", Dib(2, 1, 8, {0x010203}, {{0, 9}}), "010203 000000 "},
        {"twenty-four bits", Dib(1, 1, 24, {}, {{3, 2, 1}}), "010203 "},
        {"thirty-two bits", Dib(1, 1, 32, {}, {{3, 2, 1, 0xff}}), "010203 "},
        {"top row first", Dib(1, -2, 24, {}, {{3, 2, 1}, {6, 5, 4}}), "010203 040506 "},
        {"rows cut short", Dib(2, 2, 24, {}, {{3, 2, 1}}), "none"},
        {"no rows", Dib(30000, 30000, 32, {}, {}), "none"},
        {"unknown depth", Dib(1, 1, 16, {}, {{1, 2}}), "none"},
        {"no width", Dib(0, 1, 24, {}, {{3, 2, 1}}), "none"},
        {"palette missing", Data(Dib(1, 1, 8, {}, {})), "none"},
        {"no header", {40, 0}, "none"}};
    ResourceFile file;
    for (std::size_t i = 0; i < cases.size(); ++i) file.Add(2, static_cast<WORD>(i + 1), cases[i].dib);
    const TestModule module(file.bytes);
    for (std::size_t i = 0; i < cases.size(); ++i) {
        SCOPED_TRACE(cases[i].pszName);
        EXPECT_EQ(cases[i].pszWant, Pixels(LoadBitmapA(module.hModule, MAKEINTRESOURCEA(i + 1))));
        const HANDLE hImage =
            LoadImageA(module.hModule, MAKEINTRESOURCEA(i + 1), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
        EXPECT_EQ(cases[i].pszWant, Pixels(static_cast<HBITMAP>(hImage)));
    }
}

TEST(BitmapResource, SystemColoursAndSize) {
    ResourceFile file;
    file.Add(2, 1, Dib(2, 1, 8, {0xc0c0c0, 0x010203}, {{0, 1}}));
    const TestModule module(file.bytes);
    const COLORREF clrFace = GetSysColor(COLOR_3DFACE);
    char szWant[64];
    snprintf(szWant, sizeof szWant, "%02X%02X%02X 010203 ", GetRValue(clrFace), GetGValue(clrFace),
             GetBValue(clrFace));
    const auto load = [&](int cx, UINT nFlags) {
        return Pixels(static_cast<HBITMAP>(
            LoadImageA(module.hModule, MAKEINTRESOURCEA(1), IMAGE_BITMAP, cx, 0, nFlags)));
    };
    EXPECT_EQ(szWant, load(0, LR_LOADMAP3DCOLORS));
    EXPECT_EQ("C0C0C0 616162 010203 010203 ", load(4, LR_DEFAULTCOLOR));  // enlarged smoothly
    EXPECT_EQ("none", load(-1, LR_DEFAULTCOLOR));
    EXPECT_EQ(nullptr, LoadImageA(module.hModule, "file.bmp", IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE));
    EXPECT_EQ(nullptr, LoadImageA(module.hModule, MAKEINTRESOURCEA(1), 77, 0, 0, 0));
}

TEST(MenuResource, TreeAndBrokenOnes) {
    const Data good = Words({0, 0, 0x10, 'M', 0, 0, 5, 'a', 0, 0x80, 0, 0, 0x80, 6, 0x4e2d, 0});
    std::vector<unsigned> deep{0, 0};
    for (int i = 0; i < 1000; ++i) deep.insert(deep.end(), {0x90, 0});
    ResourceFile file;
    file.Add(4, 1, good).Add(4, 2, Data(good.begin(), good.end() - 2)).Add(4, 3, Words(deep));
    file.Add(4, 4, Words({1, 4, 0, 0})).Add(4, 5, {});
    const TestModule module(file.bytes);
    const HMENU hMenu = LoadMenuA(module.hModule, MAKEINTRESOURCEA(1)), hPopup = GetSubMenu(hMenu, 0);
    EXPECT_EQ(2, GetMenuItemCount(hMenu));
    EXPECT_EQ(2, GetMenuItemCount(hPopup));
    EXPECT_EQ(5u, GetMenuItemID(hPopup, 0));
    EXPECT_NE(0u, GetMenuState(hPopup, 1, MF_BYPOSITION) & MF_SEPARATOR);
    char szText[8] = {};
    GetMenuStringA(hMenu, 6, szText, sizeof szText, MF_BYCOMMAND);
    EXPECT_STREQ("\xd6\xd0", szText);
    DestroyMenu(hMenu);
    for (const WORD nId : {2, 3, 4, 5})
        EXPECT_EQ(nullptr, LoadMenuA(module.hModule, MAKEINTRESOURCEA(nId))) << nId;
}

TEST(CursorResource, BrokenOnes) {
    const auto group = [](unsigned nId, unsigned nCount) {
        return Words({0, 2, nCount, 2, 4, 1, 1, 100, 0, nId});
    };
    Data cursor = Words({1, 0});
    const Data dib = Dib(2, 4, 1, {0, 0xffffff}, {{0x80}, {0x40}, {0x00}, {0xc0}});
    cursor.insert(cursor.end(), dib.begin(), dib.end());
    ResourceFile file;
    file.Add(1, 1, cursor).Add(1, 2, Data(cursor.begin(), cursor.end() - 4)).Add(12, 1, group(1, 1));
    file.Add(12, 2, group(2, 1)).Add(12, 3, group(9, 1)).Add(12, 4, group(1, 60000)).Add(12, 5, {});
    const TestModule module(file.bytes);
    for (const WORD nId : {1, 2, 3, 4, 5}) {
        const bool bSound = nId == 1 || nId == 4;  // whose one picture is sound
        EXPECT_EQ(bSound, LoadCursorA(module.hModule, MAKEINTRESOURCEA(nId)) != nullptr) << nId;
    }
}

}  // namespace

#endif
