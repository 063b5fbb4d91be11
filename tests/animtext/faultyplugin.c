/* Preloaded, also before librecord, it makes a plugin that does as $FAULT says: */
/* "pixel" paints one pixel otherwise, in the 20th picture; "keeps" never frees a session, */
/* "twice" frees each two times, "grows" leaks 64 KiB with each. */
#define _GNU_SOURCE

#include <torvsdk.h>

#include <dlfcn.h>
#include <stdlib.h>
#include <string.h>

static char* painted;
static void* volatile lost;

static int Has(const char* fault)
{
    const char* const wanted = getenv("FAULT");
    return wanted && strcmp(wanted, fault) == 0;
}

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
    if (++pictures == 20 && painted && Has("pixel"))
        painted[42] ^= 1;
    return painted = next(display, session, layer);
}

int FreePictureSession(PicSession session)
{
    __typeof__(&FreePictureSession) next;
    *(void**)&next = dlsym(RTLD_NEXT, "FreePictureSession");
    if (Has("keeps"))
        return 0;
    if (Has("grows"))
        memset(lost = malloc(65536), 1, 65536);
    if (Has("twice"))
        next(session);
    return next(session);
}
