#include <foundation/library.h>
#include <gtest/gtest.h>

namespace {
const LPCSTR k_pszDisc = MAKEINTRESOURCE(3000);  // a bitmap that the library carries

/// Puts the modules that resources come from back as they were.
class ModuleScope {
public:
    ~ModuleScope() { *AfxGetModuleState() = m_state; }

private:
    AFX_MODULE_STATE m_state = *AfxGetModuleState();
};

/// Takes the library out of the resource chain and puts it back.
class WithoutLibrary {
public:
    explicit WithoutLibrary(HMODULE hLibrary) : m_hLibrary(hLibrary) {
        AFX_EXTENSION_MODULE module;
        AfxInitExtensionModule(module, hLibrary);
        AfxTermExtensionModule(module);
    }
    ~WithoutLibrary() {
        AFX_EXTENSION_MODULE module{TRUE, m_hLibrary, m_hLibrary};
        new CDynLinkLibrary(module);  // goes with the library
    }

private:
    HMODULE m_hLibrary;
};

/// A module handle that no module has.
HINSTANCE FakeModule(int nWhich = 0) {
    static int s_nSomewhere[2];
    return reinterpret_cast<HINSTANCE>(&s_nSomewhere[nWhich]);
}
}  // namespace

TEST(ResourceModules, TheProgramIsAskedAfterTheCurrentOne) {
    const ModuleScope scope;
    const HINSTANCE hProgram = AfxGetInstanceHandle();
    AfxSetResourceHandle(hProgram);
    const HINSTANCE hLibrary = AfxFindResourceHandle(k_pszDisc, RT_BITMAP);
    ASSERT_NE(hProgram, hLibrary);
    const WithoutLibrary outside(hLibrary);
    EXPECT_EQ(hProgram, AfxFindResourceHandle(k_pszDisc, RT_BITMAP)) << "nobody has it now";
    // The roles exchanged: the program has the bitmap, the current module has not.
    AfxGetModuleState()->m_hCurrentInstanceHandle = hLibrary;
    EXPECT_EQ(hLibrary, AfxFindResourceHandle(k_pszDisc, RT_BITMAP));
    CBitmap bitmap;
    EXPECT_TRUE(bitmap.LoadBitmap(3000));
}

TEST(ResourceModules, UnloadingLeavesNoneButAnotherCurrentOne) {
    for (const bool bAnother : {false, true}) {
        const ModuleScope scope;
        ASSERT_TRUE(AttachLibrary(FakeModule()));
        EXPECT_EQ(FakeModule(), LibraryInstance());
        AfxSetResourceHandle(FakeModule(bAnother ? 1 : 0));
        DetachLibrary();
        EXPECT_EQ(bAnother ? FakeModule(1) : AfxGetInstanceHandle(), AfxGetResourceHandle());
        EXPECT_EQ(nullptr, LibraryInstance());
    }
}
