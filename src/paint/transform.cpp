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

void Transform::translate(float dx, float dy)
{
    if (dx == 0 && dy == 0)
        return;
    switch (kind()) {
    case None:
        tx = dx;
        ty = dy;
        break;
    case Translating:
        tx += dx;
        ty += dy;
        break;
    case Scaling:
        tx += dx * a11;
        ty += dy * a22;
        break;
    case Rotating:
    case Shearing:
        tx += dx * a11 + dy * a21;
        ty += dy * a22 + dx * a12;
        break;
    }
    Touch(Translating);
}

void Transform::scale(float sx, float sy)
{
    if (sx == 1 && sy == 1)
        return;
    switch (kind()) {
    case None:
    case Translating:
        a11 = sx;
        a22 = sy;
        break;
    case Rotating:
    case Shearing: a12 *= sx; a21 *= sy; // fallthrough
    case Scaling:
        a11 *= sx;
        a22 *= sy;
        break;
    }
    Touch(Scaling);
}

void Transform::shear(float sh, float sv)
{
    if (sh == 0 && sv == 0)
        return;
    switch (kind()) {
    case None:
    case Translating:
        a12 = sv;
        a21 = sh;
        break;
    case Scaling:
        a12 = sv * a22;
        a21 = sh * a11;
        break;
    case Rotating:
    case Shearing: {
        const float b11 = sv * a21;
        const float b22 = sh * a12;
        const float b12 = sv * a22;
        const float b21 = sh * a11;
        a11 += b11;
        a12 += b12;
        a21 += b21;
        a22 += b22;
        break;
    }
    }
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
    switch (kind()) {
    case None:
    case Translating:
        a11 = cosine;
        a12 = sine;
        a21 = -sine;
        a22 = cosine;
        break;
    case Scaling: {
        const float b11 = cosine * a11;
        const float b12 = sine * a22;
        const float b21 = -sine * a11;
        const float b22 = cosine * a22;
        a11 = b11;
        a12 = b12;
        a21 = b21;
        a22 = b22;
        break;
    }
    case Rotating:
    case Shearing: {
        const float b11 = cosine * a11 + sine * a21;
        const float b12 = cosine * a12 + sine * a22;
        const float b21 = -sine * a11 + cosine * a21;
        const float b22 = -sine * a12 + cosine * a22;
        a11 = b11;
        a12 = b12;
        a21 = b21;
        a22 = b22;
        break;
    }
    }
    Touch(Rotating);
}

void Transform::map(float& x, float& y) const
{
    Point point = {x, y};
    map(&point, 1);
    x = point.x;
    y = point.y;
}

void Transform::map(const Outline& outline, Point* to, float dx, float dy) const
{
    const size_t size = outline.Size();
    switch (kind()) {
    case None:
        for (size_t i = 0; i < size; ++i) {
            to[i].x = outline.At(i).x + dx;
            to[i].y = outline.At(i).y + dy;
        }
        break;
    case Translating:
        for (size_t i = 0; i < size; ++i) {
            to[i].x = outline.At(i).x + tx + dx;
            to[i].y = outline.At(i).y + ty + dy;
        }
        break;
    case Scaling:
        for (size_t i = 0; i < size; ++i) {
            to[i].x = a11 * outline.At(i).x + tx + dx;
            to[i].y = a22 * outline.At(i).y + ty + dy;
        }
        break;
    case Rotating:
    case Shearing:
        for (size_t i = 0; i < size; ++i) {
            const float x = outline.At(i).x;
            const float y = outline.At(i).y;
            to[i].x = a11 * x + a21 * y + tx + dx;
            to[i].y = a12 * x + a22 * y + ty + dy;
        }
        break;
    }
}

void Transform::map(Point* points, size_t count) const
{
    switch (kind()) {
    case None: break;
    case Translating:
        for (size_t i = 0; i < count; ++i) {
            points[i].x = points[i].x + tx;
            points[i].y = points[i].y + ty;
        }
        break;
    case Scaling:
        for (size_t i = 0; i < count; ++i) {
            points[i].x = a11 * points[i].x + tx;
            points[i].y = a22 * points[i].y + ty;
        }
        break;
    case Rotating:
    case Shearing:
        for (size_t i = 0; i < count; ++i) {
            const float x = points[i].x;
            const float y = points[i].y;
            points[i].x = a11 * x + a21 * y + tx;
            points[i].y = a12 * x + a22 * y + ty;
        }
        break;
    }
}

Outline Transform::map(const Outline& outline) const
{
    Outline mapped(outline);
    if (kind() == None)
        return mapped;
    for (size_t i = 0; i < mapped.Size(); ++i)
        map(mapped.At(i).x, mapped.At(i).y);
    return mapped;
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
