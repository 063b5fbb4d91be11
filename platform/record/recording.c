#define _POSIX_C_SOURCE 200112L

#include "recording.h"

#include "sha1.h"

#include <fcntl.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>
#include <unistd.h>

enum {
    mostLayers = 256,
    lineBytes = 1024,
    standardMegabytes = 64,
};

typedef struct Layer
{
    PicSession session; /* 0: free */
    int layer;
    int type;
    int width, height, bytesPerLine;
    const char* buffers[2]; /* as they are numbered; null where not known yet */
    const char* painted;    /* what the next swap shows; null where not known */
} Layer;

static Layer layers[mostLayers];

static int file = -2; /* -2 not opened yet, -1 nothing is recorded */
static long long bytesLeft;
static long pixelsLeft; /* pictures whose pixels are still wanted */
static long pixelFiles;
static const char* name;
static long long firstCall;
static char line[lineBytes];
static size_t used;

static long long Milliseconds(void)
{
    struct timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return (long long)now.tv_sec * 1000 + now.tv_nsec / 1000000;
}

static long Setting(const char* variable, long standard)
{
    const char* text = getenv(variable);
    return text && *text ? atol(text) : standard;
}

static void Open(void)
{
    name = getenv("ANIMTEXT_RECORD");
    file = -1;
    if (!name || !*name)
        return;
    bytesLeft = (long long)Setting("ANIMTEXT_RECORD_MEGABYTES", standardMegabytes) << 20;
    pixelsLeft = Setting("ANIMTEXT_RECORD_PIXELS", 0);
    file = open(name, O_WRONLY | O_CREAT | O_TRUNC | O_APPEND, 0666);
    if (file < 0)
        fprintf(stderr, "record: %s cannot be written; nothing is recorded\n", name);
    firstCall = Milliseconds();
}

/* Gives up the recording rather than the sign. */
static void Stop(const char* why)
{
    fprintf(stderr, "record: %s: %s; nothing more is recorded\n", name, why);
    close(file);
    file = -1;
}

int BeginLine(const char* call)
{
    if (file == -2)
        Open();
    if (file < 0)
        return 0;
    used = 0;
    Add("{\"call\":\"%s\"", call);
    return 1;
}

void Add(const char* format, ...)
{
    va_list arguments;
    int written;
    va_start(arguments, format);
    written = vsnprintf(line + used, sizeof line - used, format, arguments);
    va_end(arguments);
    if (written > 0 && (size_t)written < sizeof line - used)
        used += (size_t)written;
}

void EndLine(void)
{
    Add(",\"ms\":%lld}\n", Milliseconds() - firstCall);
    bytesLeft -= (long long)used;
    if (bytesLeft < 0)
        Stop("it has become as long as it may");
    else if (write(file, line, used) != (ssize_t)used)
        Stop("it cannot be written");
}

static Layer* Find(PicSession session, int layer)
{
    int i;
    for (i = 0; i < mostLayers; ++i) {
        if (layers[i].session == session && layers[i].layer == layer)
            return &layers[i];
    }
    return NULL;
}

void RememberLayer(PicSession session, int layer, int type, int width, int height, int bytesPerLine)
{
    Layer* found = Find(session, layer);
    if (!found)
        found = Find(0, 0);
    if (!found || !session)
        return;
    memset(found, 0, sizeof *found);
    found->session = session;
    found->layer = layer;
    found->type = type;
    found->width = width;
    found->height = height;
    found->bytesPerLine = bytesPerLine;
}

int TypeOf(PicSession session)
{
    const Layer* base = Find(session, 0);
    return base ? base->type : 0;
}

void ForgetSession(PicSession session)
{
    int i;
    for (i = 0; i < mostLayers && session; ++i) {
        if (layers[i].session == session)
            memset(&layers[i], 0, sizeof layers[i]);
    }
}

int BufferNumber(PicSession session, int layer, const char* buffer)
{
    Layer* known = Find(session, layer);
    int number;
    if (!buffer)
        return bufferless;
    if (!known)
        return 0;
    number = !known->buffers[1] || known->buffers[1] == buffer ? 1 : 0;
    known->buffers[number] = buffer;
    known->painted = buffer;
    return number;
}

/* Red, green, blue, and alpha where there is one: pictures of 32 bits are words of the processor.
 */
static void WriteRow(const char* bits, int type, int width, FILE* pixels)
{
    int x;
    if (type != 3) {
        fwrite(bits, 3, (size_t)width, pixels);
        return;
    }
    for (x = 0; x < width; ++x) {
        uint32_t word;
        memcpy(&word, bits + 4 * x, 4);
        putc((int)(word >> 16 & 255), pixels);
        putc((int)(word >> 8 & 255), pixels);
        putc((int)(word & 255), pixels);
        putc((int)(word >> 24), pixels);
    }
}

/* A file that viewers know, netpbm's PAM. */
static void WritePixels(const char* bits, int type, int width, int height, int bytesPerLine)
{
    char path[4096];
    FILE* pixels;
    int y;
    if (pixelsLeft <= 0)
        return;
    --pixelsLeft;
    snprintf(path, sizeof path, "%s-%ld.pam", name, pixelFiles);
    pixels = fopen(path, "wb");
    if (!pixels) {
        fprintf(stderr, "record: %s cannot be written; no pixels are kept\n", path);
        pixelsLeft = 0;
        return;
    }
    fprintf(pixels, "P7\nWIDTH %d\nHEIGHT %d\nDEPTH %d\nMAXVAL 255\nTUPLTYPE %s\nENDHDR\n", width,
            height, type == 3 ? 4 : 3, type == 3 ? "RGB_ALPHA" : "RGB");
    for (y = 0; y < height; ++y)
        WriteRow(bits + (size_t)y * (size_t)bytesPerLine, type, width, pixels);
    if (fclose(pixels) == 0)
        Add(",\"pixels\":%ld", pixelFiles++);
}

void AddPictureOf(const char* bits, int type, int width, int height, int bytesPerLine)
{
    char digest[41];
    Sha1 sha1;
    int y;
    Add(",\"w\":%d,\"h\":%d", width, height);
    if (!bits || width <= 0 || height <= 0)
        return;
    Sha1Begin(&sha1);
    for (y = 0; y < height; ++y)
        Sha1Add(&sha1, bits + (size_t)y * (size_t)bytesPerLine,
                (size_t)width * (type == 3 ? 4U : 3U));
    Sha1End(&sha1, digest);
    Add(",\"sha1\":\"%s\"", digest);
    WritePixels(bits, type, width, height, bytesPerLine);
}

void AddPicture(PicSession session, int layer)
{
    const Layer* known = Find(session, layer);
    if (known && known->painted)
        AddPictureOf(known->painted, known->type, known->width, known->height, known->bytesPerLine);
}
