#include "module_image.h"

// Defined in embed_resources.S around the compiled resource file.
extern "C" const unsigned char g_tavlonResources[];
extern "C" const unsigned char g_tavlonResourcesEnd[];

const ModuleImage& TavlonModuleImage() {
    static const ModuleImage image{"Tavlon.dll", g_tavlonResources,
                                   static_cast<std::size_t>(g_tavlonResourcesEnd - g_tavlonResources)};
    return image;
}
