/*
 * Writes down what a plugin asks of the device and gives it: the nine calls with their arguments,
 * results and times, and a digest of every picture that is handed over, a line of JSON each, as
 * `animtext trace --calls` prints them. `animtext compare` reads it.
 *
 * Loaded with LD_PRELOAD, or linked before the device's SDK, it passes every call on. The
 * environment says what to do; without ANIMTEXT_RECORD nothing is recorded:
 *   ANIMTEXT_RECORD=FILE         where the lines go
 *   ANIMTEXT_RECORD_MEGABYTES=N  how long the file may become, 64
 *   ANIMTEXT_RECORD_PIXELS=N     keeps the pixels of the first N pictures, as FILE-0.pam and on
 *
 *   cc -shared -fPIC -O2 -I DIRECTORY_OF_TORVSDK_H -o librecord.so *.c -ldl
 */
#define _GNU_SOURCE

#include "recording.h"

#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>

/* The device's own function of that name. A program without it could not have been started. */
static void* Next(const char* function)
{
    void* next = dlsym(RTLD_NEXT, function);
    if (!next) {
        fprintf(stderr, "record: the device's SDK has no %s\n", function);
        abort();
    }
    return next;
}

/* dlsym() returns a pointer to data; POSIX says that it can be called anyway. */
#define PASS_ON(function)                                                                          \
    static __typeof__(&(function)) next;                                                           \
    if (!next)                                                                                     \
    *(void**)&next = Next(#function)

static void AddBuffer(int number)
{
    if (number == bufferless)
        Add(",\"result\":null");
    else
        Add(",\"result\":\"buffer %d\"", number);
}

static void AddImage(const PicImage* image)
{
    if (image)
        Add(",\"image\":{\"width\":%d,\"height\":%d,\"bytesPerLine\":%d,\"bits\":%s}", image->width,
            image->height, image->bytesPerLine, image->bits ? "true" : "false");
    else
        Add(",\"image\":null");
}

static void AddEffect(const Effect* effect)
{
    if (effect)
        Add(",\"effect\":{\"effect1\":%d,\"duration1\":%d,\"effect2\":%d,\"duration2\":%d,"
            "\"effect3\":%d,\"duration3\":%d}",
            effect->effect1, effect->duration1, effect->effect2, effect->duration2, effect->effect3,
            effect->duration3);
    else
        Add(",\"effect\":null");
}

static void AddPlacement(const PicPlacement* placement)
{
    if (placement)
        Add(",\"placement\":{\"x\":%d,\"y\":%d,\"width\":%d,\"height\":%d,\"imageWidth\":%d,"
            "\"imageHeight\":%d}",
            placement->x, placement->y, placement->width, placement->height, placement->imageWidth,
            placement->imageHeight);
    else
        Add(",\"placement\":null");
}

PicSession CreatePictureSession(int type, const PicImage* image, int flags, const Effect* effect,
                                const PicPlacement* placement, unsigned int pixelWord)
{
    PicSession session;
    PASS_ON(CreatePictureSession);
    session = next(type, image, flags, effect, placement, pixelWord);
    if (!BeginLine("CreatePictureSession"))
        return session;
    Add(",\"type\":%d", type);
    AddImage(image);
    Add(",\"flags\":%d", flags);
    AddEffect(effect);
    AddPlacement(placement);
    Add(",\"pixelWord\":\"0x%08x\",\"result\":%u", pixelWord, session);
    if (image) {
        RememberLayer(session, 0, type, image->width, image->height, image->bytesPerLine);
        AddPictureOf(image->bits, type, image->width, image->height, image->bytesPerLine);
    }
    EndLine();
    return session;
}

int AddPictureSession(PicDisplay display, PicSession session, int reserved)
{
    int result;
    PASS_ON(AddPictureSession);
    result = next(display, session, reserved);
    if (BeginLine("AddPictureSession")) {
        Add(",\"display\":%u,\"session\":%u,\"reserved\":%d,\"result\":%d", display, session,
            reserved, result);
        EndLine();
    }
    return result;
}

int PicAppendImageLayer(PicDisplay display, PicSession session, int width, int height,
                        int bytesPerLine, unsigned int pixelWord)
{
    int layer;
    PASS_ON(PicAppendImageLayer);
    layer = next(display, session, width, height, bytesPerLine, pixelWord);
    if (BeginLine("PicAppendImageLayer")) {
        Add(",\"display\":%u,\"session\":%u,\"width\":%d,\"height\":%d,\"bytesPerLine\":%d,"
            "\"pixelWord\":\"0x%08x\",\"result\":%d",
            display, session, width, height, bytesPerLine, pixelWord, layer);
        if (layer > 0)
            RememberLayer(session, layer, TypeOf(session), width, height, bytesPerLine);
        EndLine();
    }
    return layer;
}

char* GetPicImageLayerPtr(PicDisplay display, PicSession session, int layer, int mode)
{
    char* buffer;
    PASS_ON(GetPicImageLayerPtr);
    buffer = next(display, session, layer, mode);
    if (BeginLine("GetPicImageLayerPtr")) {
        Add(",\"display\":%u,\"session\":%u,\"layer\":%d,\"mode\":%d", display, session, layer,
            mode);
        AddBuffer(BufferNumber(session, layer, buffer));
        EndLine();
    }
    return buffer;
}

char* SwapPicImageLayerPtr(PicDisplay display, PicSession session, int layer)
{
    char* buffer;
    int isRecorded;
    PASS_ON(SwapPicImageLayerPtr);
    /* The picture is read before the device has it. */
    isRecorded = BeginLine("SwapPicImageLayerPtr");
    if (isRecorded) {
        Add(",\"display\":%u,\"session\":%u,\"layer\":%d", display, session, layer);
        AddPicture(session, layer);
    }
    buffer = next(display, session, layer);
    if (isRecorded) {
        AddBuffer(BufferNumber(session, layer, buffer));
        EndLine();
    }
    return buffer;
}

int SetPicLayerBlend(PicDisplay display, PicSession session, int layer, int value)
{
    int result;
    PASS_ON(SetPicLayerBlend);
    result = next(display, session, layer, value);
    if (BeginLine("SetPicLayerBlend")) {
        Add(",\"display\":%u,\"session\":%u,\"layer\":%d,\"value\":%d,\"result\":%d", display,
            session, layer, value, result);
        EndLine();
    }
    return result;
}

int RemovePictureSession(PicDisplay display, PicSession session)
{
    int result;
    PASS_ON(RemovePictureSession);
    result = next(display, session);
    if (BeginLine("RemovePictureSession")) {
        Add(",\"display\":%u,\"session\":%u,\"result\":%d", display, session, result);
        EndLine();
    }
    return result;
}

int FreePictureSession(PicSession session)
{
    int result;
    PASS_ON(FreePictureSession);
    result = next(session);
    if (BeginLine("FreePictureSession")) {
        Add(",\"session\":%u,\"result\":%d", session, result);
        ForgetSession(session);
        EndLine();
    }
    return result;
}

int GeteffectDuration(int length, int areaHeight, int effectCode, int speedIndex)
{
    int duration;
    PASS_ON(GeteffectDuration);
    duration = next(length, areaHeight, effectCode, speedIndex);
    if (BeginLine("GeteffectDuration")) {
        Add(",\"length\":%d,\"areaHeight\":%d,\"effectCode\":%d,\"speedIndex\":%d,\"result\":%d",
            length, areaHeight, effectCode, speedIndex, duration);
        EndLine();
    }
    return duration;
}
