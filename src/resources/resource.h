// Resource ids of the library. Read by the resource compiler as well, so only plain #defines here.
#pragma once

// Sprites of 16 x 16 pixels. The pixel (1,1) has the transparent colour.
#define IDB_POINT_GREEN_BIG 3000
#define IDB_POINT_GREEN_SMALL 3001
#define IDB_POINT_RED_BIG 3002
#define IDB_POINT_RED_SMALL 3003
#define IDB_POINT_WHITE_BIG 3004
#define IDB_POINT_WHITE_SMALL 3005
#define IDB_POINT_YELLOW_BIG 3006
#define IDB_POINT_YELLOW_SMALL 3007

// Carried for hosts; no control draws them.
#define IDB_STAR_BIG 3011
#define IDB_STAR_SMALL 3012

#define IDC_POINTING_HAND 3008

// Carried for hosts; no control loads it.
#define IDR_STAR_MENU 3010
#define ID_STAR_CANCEL_ZOOM 32771
#define ID_STAR_BIGGER 32773
#define ID_STAR_SMALLER 32774
