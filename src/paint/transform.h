#ifndef TRANSFORM_H
#define TRANSFORM_H

#include "paint/outline.h"
#include "paint/point.h"

namespace Lw {
namespace HNodeAnimationText {

/**
 * A transform of the plane, computed in float: every operation gives what the device's QTransform
 * gives. Its operations have the names they have there and apply before what was there already.
 */
class Transform
{
public:
    Transform() { reset(); }

    void reset();
    void translate(float dx, float dy);
    void scale(float sx, float sy);
    void shear(float sh, float sv);
    /** By @p degrees around the origin, clockwise on a picture. */
    void rotate(float degrees);

    /** In place. */
    void map(Point* points, size_t count) const;
    /** As many points as the outline has elements, each moved by (@p dx, @p dy) thereafter. */
    void map(const Outline& outline, Point* to, float dx = 0, float dy = 0) const;
    Outline map(Outline outline, float dx = 0, float dy = 0) const;

    /** Points stay where they are. */
    bool IsIdentity() const { return kind() == None; }
    /** All elements are finite numbers. */
    bool IsFinite() const;
    /** Maps points the same way, bit for bit. */
    bool operator==(const Transform& other) const;

    float m11() const { return a11; }
    float m12() const { return a12; }
    float m21() const { return a21; }
    float m22() const { return a22; }
    float dx() const { return tx; }
    float dy() const { return ty; }

private:
    // What a transform does at most. The device computes by this kind, and works it out again only
    // after an operation that may have raised it.
    enum Kind { None, Translating, Scaling, Rotating, Shearing };
    Kind kind() const;
    Kind MeasuredKind() const;
    void Touch(Kind atLeast);
    struct Linear
    {
        float a11, a12, a21, a22;
    };
    Linear Effective() const;
    template <typename From, typename To>
    void MapAll(const From* from, size_t count, To* to, float dx, float dy) const;

    float a11, a12, a21, a22, tx, ty;
    mutable Kind known;
    mutable Kind touched;
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
