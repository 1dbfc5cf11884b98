#include "context_menu.h"

#include "scatter_commands.h"

void TrackScatterMenu(CWnd& wnd, bool bBigPoint) {
    CMenu menu;
    if (!menu.CreatePopupMenu()) return;
    menu.AppendMenu(MF_STRING, ID_SCATTER_SHOW_ALL, "全部显示");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING, ID_SCATTER_ENLARGE, "区域放大");
    menu.AppendMenu(MF_STRING, ID_SCATTER_DRAG, "拖动查看");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(bBigPoint ? MF_GRAYED : MF_STRING, ID_SCATTER_BIG_POINTS, "大点模式");
    menu.AppendMenu(bBigPoint ? MF_STRING : MF_GRAYED, ID_SCATTER_SMALL_POINTS, "小点模式");
    CPoint ptMouse;
    ::GetCursorPos(&ptMouse);
    menu.TrackPopupMenu(TPM_RIGHTBUTTON, ptMouse.x, ptMouse.y, &wnd);
}
