#include "paint/transform.h"

#include <cmath>

namespace Lw {
namespace HNodeAnimationText {

namespace {

const float radiansPerDegree = float(0.017453292519943295769);

} // namespace

void Transform::reset()
{
    a11 = a22 = 1;
    a12 = a21 = tx = ty = 0;
    known = touched = None;
}

Transform::Kind Transform::MeasuredKind() const
{
    if (!NearlyZero(a12) || !NearlyZero(a21))
        return NearlyZero(a11 * a12 + a21 * a22) ? Rotating : Shearing;
    if (!NearlyZero(a11 - 1) || !NearlyZero(a22 - 1))
        return Scaling;
    return NearlyZero(tx) && NearlyZero(ty) ? None : Translating;
}

Transform::Kind Transform::kind() const
{
    if (touched != None && touched >= known) {
        known = MeasuredKind();
        touched = None;
    }
    return known;
}

void Transform::Touch(Kind atLeast)
{
    if (touched < atLeast)
        touched = atLeast;
}

/** The elements that the device computes with: what the kind does not do is left out exactly. */
Transform::Linear Transform::Effective() const
{
    const bool scales = kind() >= Scaling;
    const bool turns = kind() >= Rotating;
    const Linear linear = {scales ? a11 : 1, turns ? a12 : 0, turns ? a21 : 0, scales ? a22 : 1};
    return linear;
}

void Transform::translate(float dx, float dy)
{
    if (dx == 0 && dy == 0)
        return;
    const Linear m = Effective();
    if (kind() == None)
        tx = ty = 0;
    tx += dx * m.a11 + dy * m.a21;
    ty += dy * m.a22 + dx * m.a12;
    Touch(Translating);
}

void Transform::scale(float sx, float sy)
{
    if (sx == 1 && sy == 1)
        return;
    const Linear m = Effective();
    if (kind() >= Rotating) {
        a12 *= sx;
        a21 *= sy;
    }
    a11 = m.a11 * sx;
    a22 = m.a22 * sy;
    Touch(Scaling);
}

void Transform::shear(float sh, float sv)
{
    if (sh == 0 && sv == 0)
        return;
    const Linear m = Effective();
    a11 += sv * m.a21;
    a12 = m.a12 + sv * m.a22;
    a21 = m.a21 + sh * m.a11;
    a22 += sh * m.a12;
    Touch(Shearing);
}

void Transform::rotate(float degrees)
{
    if (degrees == 0)
        return;
    float sine = 0;
    float cosine = 0;
    if (degrees == 90.0f || degrees == -270.0f) {
        sine = 1;
    } else if (degrees == 270.0f || degrees == -90.0f) {
        sine = -1;
    } else if (degrees == 180.0f) {
        cosine = -1;
    } else {
        const float radians = radiansPerDegree * degrees;
        sine = std::sin(radians);
        cosine = std::cos(radians);
    }
    const Linear m = Effective();
    a11 = cosine * m.a11 + sine * m.a21;
    a12 = cosine * m.a12 + sine * m.a22;
    a21 = -sine * m.a11 + cosine * m.a21;
    a22 = -sine * m.a12 + cosine * m.a22;
    Touch(Rotating);
}

/** From points or elements, which may be those at @p to. */
template <typename From, typename To>
void Transform::MapAll(const From* from, size_t count, To* to, float dx, float dy) const
{
    switch (kind()) {
    case None:
        for (size_t i = 0; i < count; ++i) {
            to[i].x = from[i].x + dx;
            to[i].y = from[i].y + dy;
        }
        break;
    case Translating:
        for (size_t i = 0; i < count; ++i) {
            to[i].x = from[i].x + tx + dx;
            to[i].y = from[i].y + ty + dy;
        }
        break;
    case Scaling:
        for (size_t i = 0; i < count; ++i) {
            to[i].x = a11 * from[i].x + tx + dx;
            to[i].y = a22 * from[i].y + ty + dy;
        }
        break;
    case Rotating:
    case Shearing:
        for (size_t i = 0; i < count; ++i) {
            const float x = from[i].x;
            const float y = from[i].y;
            to[i].x = a11 * x + a21 * y + tx + dx;
            to[i].y = a12 * x + a22 * y + ty + dy;
        }
        break;
    }
}

void Transform::map(const Outline& outline, Point* to, float dx, float dy) const
{
    if (outline.Size() > 0)
        MapAll(&outline.At(0), outline.Size(), to, dx, dy);
}

void Transform::map(Point* points, size_t count) const
{
    MapAll(points, count, points, 0, 0);
}

Outline Transform::map(Outline outline, float dx, float dy) const
{
    if (outline.Size() > 0)
        MapAll(&outline.At(0), outline.Size(), &outline.At(0), dx, dy);
    return outline;
}

bool Transform::IsFinite() const
{
    return a11 * 0 + a12 * 0 + a21 * 0 + a22 * 0 + tx * 0 + ty * 0 == 0;
}

bool Transform::operator==(const Transform& other) const
{
    return kind() == other.kind() && a11 == other.a11 && a12 == other.a12 && a21 == other.a21 &&
           a22 == other.a22 && tx == other.tx && ty == other.ty;
}

} // namespace HNodeAnimationText
} // namespace Lw
