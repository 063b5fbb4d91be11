/* Preloaded before librecord it makes a plugin that paints one pixel otherwise, in its 20th picture. */
#define _GNU_SOURCE

#include <torvsdk.h>

#include <dlfcn.h>

static char* painted;

char* GetPicImageLayerPtr(PicDisplay display, PicSession session, int layer, int mode)
{
    __typeof__(&GetPicImageLayerPtr) next;
    *(void**)&next = dlsym(RTLD_NEXT, "GetPicImageLayerPtr");
    return painted = next(display, session, layer, mode);
}

char* SwapPicImageLayerPtr(PicDisplay display, PicSession session, int layer)
{
    static int pictures;
    __typeof__(&SwapPicImageLayerPtr) next;
    *(void**)&next = dlsym(RTLD_NEXT, "SwapPicImageLayerPtr");
    if (++pictures == 20 && painted)
        painted[42] ^= 1;
    return painted = next(display, session, layer);
}
