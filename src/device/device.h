#ifndef ANIMATIONTEXT_DEVICE_H
#define ANIMATIONTEXT_DEVICE_H

#include <torvsdk.h>

#include <QTimer>

/**
 * @file
 * Constants of the device: the numbers that its service expects, and its tick.
 */
namespace Lw {
namespace HNodeAnimationText {

const int tickInterval = 66;   // ms from one picture to the next
const int writeMode = 5;       // of GetPicImageLayerPtr()
const int sessionFlags = 16;   // of CreatePictureSession()
const int alphaSession = 3;    // session type: 32 bits a pixel, blended by alpha
const int keySession = 5;      // session type: 24 bits a pixel, blended by color key
const int colorKey = 0x010201; // 0xRRGGBB
const int scrollsLeft = 26;    // effect codes
const int scrollsRight = 27;
const unsigned int opaqueWord = 0xFF000000u; // above the key in an alpha session's pixel word

/** The code that moves the base layer. @param style "ContinueStyle": 1 right, otherwise left */
inline int ScrollCode(int style)
{
    return style == 1 ? scrollsRight : scrollsLeft;
}

/** A session's number where the host's classes take a pointer. */
inline void* Opaque(PicSession session)
{
    return reinterpret_cast<void*>(static_cast<quintptr>(session));
}

/** The number of such a pointer. */
inline PicSession SessionHandle(void* session)
{
    return static_cast<PicSession>(reinterpret_cast<quintptr>(session));
}

/** Makes @p timer precise: Qt 5's default timers would fire every 64 ms. */
inline void KeepTime(QTimer& timer)
{
#if QT_VERSION >= 0x050000
    timer.setTimerType(Qt::PreciseTimer);
#else
    Q_UNUSED(timer);
#endif
}

} // namespace HNodeAnimationText
} // namespace Lw

#endif
