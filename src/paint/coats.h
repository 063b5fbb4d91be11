#ifndef COATS_H
#define COATS_H

#include "paint/picture.h"
#include "paint/plane.h"

#include <vector>

namespace Lw {
namespace HNodeAnimationText {

/**
 * Translucent paint: how many coats of it each pixel has. The device blends the inside and then
 * every pixel of the outline, one that lines share again for each of them.
 */
class Coats
{
public:
    /** Of a picture without paint, in pixels. */
    void Begin(int newWidth, int newHeight);
    /** Frees what is kept. */
    void Forget();

    void Add(int x, int y)
    {
        unsigned char& coats = counts[Index(x, y)];
        coats = static_cast<unsigned char>(coats < most ? coats + 1 : coats);
    }
    /** One where @p plane, of the same size, has ink. */
    void Add(const Plane& plane);

    /** All of @p picture, which is no smaller; pixels without paint become 0. */
    void Write(uint32_t argb, const Picture& picture) const;

    size_t Bytes() const { return counts.capacity(); }

private:
    static const int most = 255; // a color stops changing long before

    size_t Index(int x, int y) const
    {
        return static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x);
    }

    int width = 0;
    int height = 0;
    std::vector<unsigned char> counts;
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
