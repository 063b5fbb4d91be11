#include "scroll.h"

namespace Torv {

qint64 ScrollPosition(const Effect& effect, int areaWidth, int pictureWidth, qint64 milliseconds)
{
    if (effect.effect1 != ScrollLeft && effect.effect1 != ScrollRight)
        return 0;

    const qint64 width = qMax(0, areaWidth);
    const qint64 period = width + pictureWidth;
    qint64 moved = 0;
    if (effect.duration1 > 0 && period > 0) {
        // milliseconds * width / duration, taken apart so that no product leaves 64 bits.
        const qint64 passes = milliseconds / effect.duration1 % period;
        const qint64 rest = milliseconds % effect.duration1 * width / effect.duration1;
        moved = (passes * width + rest) % period;
    }
    return effect.effect1 == ScrollLeft ? width - moved : moved - pictureWidth;
}

} // namespace Torv
