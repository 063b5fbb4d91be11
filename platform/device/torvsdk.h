/*
 * The device's picture-layer service as the plugin is compiled against it.
 *
 * Integrators: this header and the library behind it stand in for the device's own SDK. Replace
 * both with the vendor's; the plugin needs only the nine functions and three records below.
 *
 * A picture session shows a stack of image layers in one rectangle of a display. Every layer has
 * two buffers: one is shown, the other is painted. A layer that has never been swapped shows the
 * buffer that is painted, so a background can be painted in place. All calls come from one thread.
 *
 * A picture without pixels makes an empty layer, whose buffers are null. A session whose picture is
 * larger than 256 MiB, and a layer past the 16th, is refused.
 */
#ifndef TORVSDK_H
#define TORVSDK_H

#ifdef __cplusplus
extern "C" {
#endif

/** Handle of a display output; 0 is none. */
typedef unsigned int PicDisplay;

/** Handle of a picture session; 0 is none. */
typedef unsigned int PicSession;

/** How the device moves a session's base layer: three pairs of code and duration. */
typedef struct Effect
{
    int effect1;   /**< effect code: 0 none, 26 scroll to the left, 27 scroll to the right */
    int duration1; /**< milliseconds in which the picture moves by one area width */
    int effect2;
    int duration2; /**< milliseconds for which the effect is scheduled */
    int effect3;
    int duration3; /**< 66 for a session without an effect */
} Effect;

/** The picture that a session starts with; its bytes are copied. */
typedef struct PicImage
{
    int width;        /**< pixels */
    int height;       /**< pixels */
    int bytesPerLine; /**< bytes from one row to the next, a multiple of 4 */
    const void* bits; /**< first pixel; may be null when the picture is empty */
} PicImage;

/** Where a session is on its display, in pixels. */
typedef struct PicPlacement
{
    int x;
    int y;
    int width;  /**< of the area that the session may paint */
    int height; /**< of the area that the session may paint */
    int reserved0;
    int reserved1;
    int imageWidth;  /**< of the base layer's picture */
    int imageHeight; /**< of the base layer's picture */
} PicPlacement;

/**
 * Makes a session with one layer, layer 0, that holds a copy of @p image in both its buffers.
 * @param type 3: layers of 32 bits a pixel, blended by their alpha; 5: layers of 24 bits a pixel,
 *             blended by color key
 * @param flags 16
 * @param pixelWord 0xFF010201 with type 3, 0x00010201 with type 5; the low 24 bits are the key
 * @return the session's handle, or 0 on failure; FreePictureSession() ends it
 */
PicSession CreatePictureSession(int type, const PicImage* image, int flags, const Effect* effect,
                                const PicPlacement* placement, unsigned int pixelWord);

/** Shows @p session on @p display. @return 0, or -1 on failure */
int AddPictureSession(PicDisplay display, PicSession session, int reserved);

/**
 * Adds a layer of zero bytes to a session that is on @p display.
 * @return the layer's index (1 for the first one added), or a negative number on failure
 */
int PicAppendImageLayer(PicDisplay display, PicSession session, int width, int height,
                        int bytesPerLine, unsigned int pixelWord);

/**
 * The layer's buffer that is not shown, for painting. It stays valid until the layer is swapped or
 * its session freed.
 * @param mode 5: for writing
 * @return the first byte of the buffer, or null on failure
 */
char* GetPicImageLayerPtr(PicDisplay display, PicSession session, int layer, int mode);

/**
 * Shows the buffer that was painted.
 * @return the first byte of the buffer to paint next, or null on failure
 */
char* SwapPicImageLayerPtr(PicDisplay display, PicSession session, int layer);

/**
 * Sets a layer's place in its session's stack: layers with value 0 are at the bottom, those with 2
 * above them, those with 1 on top; among equals the higher index is above.
 * @return 0, or -1 on failure
 */
int SetPicLayerBlend(PicDisplay display, PicSession session, int layer, int value);

/** Takes @p session off @p display. @return 0, or -1 on failure */
int RemovePictureSession(PicDisplay display, PicSession session);

/** Ends a session, on a display or not, and frees its layers. @return 0, or -1 on failure */
int FreePictureSession(PicSession session);

/**
 * The time in which the device moves a picture of @p length pixels across an area of
 * @p areaHeight pixels.
 * @param effectCode 26 or 27; any other code takes no time
 * @param speedIndex speed step less one: below 4 a pixel takes 5 - speedIndex ticks of 66 ms,
 *                   from 4 on a tick moves speedIndex - 3 pixels
 * @return milliseconds, 0 .. INT_MAX
 */
int GeteffectDuration(int length, int areaHeight, int effectCode, int speedIndex);

#ifdef __cplusplus
}
#endif

#endif
