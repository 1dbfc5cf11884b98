// The sector wheel as a PNG file, without a display: wheel_png FILE.png
#include <tavlon/picture.h>
#include <tavlon/tavlon.h>

#include <cstdio>
#include <cstdlib>

constexpr UINT k_nWheelId = 1001;

// Name and main-force share in percent.
constexpr tagmyBRData k_sectors[] = {{"半导体", 1.88f},    {"元器件", 1.76f},    {"通信设备", -1.52f},
                                     {"电气设备", -2.63f}, {"汽车配件", -0.74f}, {"软件服务", 0.41f},
                                     {"化学制药", -1.05f}, {"证券", 0.12f},      {"银行", 0.93f}};

void Fill(CProxy_BR& wheel) {
    CArray<tagmyBRData, tagmyBRData&> sectors;
    for (tagmyBRData sector : k_sectors) sectors.Add(sector);
    const tagBlocksInfo info{0, "板块轮动", "半导体"};  // title and the sector to select
    wheel.Init(sectors, info);
    wheel.ReDraw();
}

/// What the window shows. Its parent must be visible and nothing may lie over it.
Picture PictureOf(CWnd& wnd) {
    wnd.UpdateWindow();
    CRect rc;
    wnd.GetClientRect(&rc);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = rc.Width();
    info.bmiHeader.biHeight = -rc.Height();  // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;

    CClientDC dcWindow(&wnd);
    void* pBits = nullptr;
    CBitmap bitmap;
    if (!bitmap.Attach(::CreateDIBSection(dcWindow, &info, DIB_RGB_COLORS, &pBits, nullptr, 0))) return {};
    CDC dcMemory;
    dcMemory.CreateCompatibleDC(&dcWindow);
    CBitmap* pOldBitmap = dcMemory.SelectObject(&bitmap);
    dcMemory.BitBlt(0, 0, rc.Width(), rc.Height(), &dcWindow, 0, 0, SRCCOPY);
    dcMemory.SelectObject(pOldBitmap);
    ::GdiFlush();  // the bits are complete
    const auto* pPixels = static_cast<const std::uint32_t*>(pBits);
    return {rc.Width(), rc.Height(), {pPixels, pPixels + Picture::PixelCount(rc.Width(), rc.Height())}};
}

int main(int argc, char** argv) {
    if (argc != 2) return std::fputs("usage: wheel_png FILE.png\n", stderr), 2;
    // Before the first window is made. Windows draws on its own desktop and does not read it.
    static char szDisplay[] = "TAVLON_DISPLAY=headless";
    ::putenv(szDisplay);

    CWnd wnd;
    const CRect rc(0, 0, 720, 640);
    wnd.CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(0), "Wheel", WS_POPUP | WS_VISIBLE, rc, nullptr, 0);
    CProxy_BR wheel;
    if (!wheel.Create(&wnd, rc, k_nWheelId)) return std::fputs("wheel_png: no window\n", stderr), 1;
    Fill(wheel);
    if (WritePng(argv[1], PictureOf(*wnd.GetDlgItem(k_nWheelId)))) return 0;
    std::fprintf(stderr, "wheel_png: %s cannot be written\n", argv[1]);
    return 1;
}
