/**
 * @file
 * Glyph data as it may come from anywhere: what the sign reads of it, and what validating says. One
 * table for all who read such bytes.
 */
#pragma once

#include "serialized.h"

#include <QString>
#include <QVector>

#include <limits>

namespace Glyphs {

inline QByteArray Element(qint32 type, double x, double y)
{
    return Serialized(type, x, y);
}

/** An outline of @p elements that says it has @p size of them. */
inline QByteArray Sized(int size, const QByteArray& elements, qint32 start = 0, qint32 rule = 0)
{
    return Serialized(size) + elements + Serialized(start, rule);
}

inline QByteArray Outline(const QByteArray& elements, qint32 start = 0, qint32 rule = 0)
{
    return Sized(elements.size() / 20, elements, start, rule);
}

/** An outline whose elements have @p types, a digit each, and stand at (3, 4). */
inline QByteArray OfTypes(const char* types)
{
    QByteArray elements;
    for (const char* type = types; *type; ++type)
        elements += Element(*type - '0', 3, 4);
    return Outline(elements);
}

inline QByteArray Polyline(int size)
{
    return Sized(size, Element(0, 7, 8) + Element(1, 7, 8).repeated(size - 1));
}

/** A data file around @p inner. */
inline QByteArray File(const QByteArray& inner)
{
    return Serialized(inner.toBase64());
}

/** The bytes within a data file. */
struct Sample
{
    QByteArray name;
    QByteArray bytes;
    QVector<int> read; ///< the elements of each outline, or the descents
    QString fault;     ///< of the outline in the middle, or of all when nothing is read
};

inline QVector<Sample> OutlineSamples()
{
    const QByteArray triangle = OfTypes("011"); // 72 bytes
    const QByteArray move = Element(0, 1, 2);
    const QByteArray corner = move + Element(1, 3, 4);
    const QByteArray three = Serialized(3) + triangle.repeated(3);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();

    QVector<Sample> samples{
        {"sound", three, {3, 3, 3}, ""},
        {"bytes behind", three + "more", {3, 3, 3}, ""},
        {"none", Serialized(0), {}, ""},
        {"without elements", Serialized(2, 0, 0), {0, 0}, ""},
        {"nothing", "", {}, "it holds no Base64 text"},
        {"half a count", three.left(3), {}, "it ends before the number of its entries"},
        {"more than bytes",
         Serialized(55) + three.mid(4),
         {},
         "it announces 55 entries and has room for 54"},
        {"as many as there can be",
         Serialized(-1) + three.mid(4),
         {},
         "it announces 4294967295 entries and has room for 54"},
        {"one more than there are",
         Serialized(4) + three.mid(4),
         {},
         "it ends within outline 3 of 4"},
        {"cut in an element", three.left(100), {}, "it ends within outline 1 of 3"},
        {"cut in the last fill rule", three.chopped(1), {}, "it ends within outline 2 of 3"},
    };
    const auto between = [&](const char* name, const QByteArray& outline, const QVector<int>& read,
                             const QString& fault) {
        samples.append({name, Serialized(3) + triangle + outline + triangle, read, fault});
    };
    const auto sound = [&](const char* name, const QByteArray& outline, int elements) {
        between(name, outline, {3, elements, 3}, "");
    };
    const auto lying = [&](const char* name, int size) {
        between(name, Sized(size, corner + move), {}, "it ends within outline 1 of 3");
    };
    const auto malformed = [&](const char* name, const QByteArray& outline, const QString& fault) {
        between(name, outline, {3, 0, 3}, fault);
    };
    sound("curve", OfTypes("0233"), 4);
    sound("two curves", OfTypes("02332331"), 8);
    sound("only a move", Outline(move), 1);
    sound("winding, from the last", Outline(corner, 1, 1), 2);
    sound("far out", Outline(Element(0, -1e6, 1e6) + Element(1, 1e6, -1e6)), 2);
    sound("as many elements as may be", Polyline(65536), 65536);
    lying("size below nought", -1);
    lying("size beyond the bytes", 7); // for 6 there are bytes
    lying("size beyond everything", 0x7fffffff);
    malformed("type above all", OfTypes("04"), "element 1 has the unknown type 4");
    malformed("type below all", OfTypes("01/1"), "element 2 has the unknown type -1");
    malformed("begins with a line", OfTypes("11"), "it does not begin with a move");
    malformed("begins with a curve", OfTypes("233"), "it does not begin with a move");
    malformed("begins in a curve", OfTypes("33"), "it does not begin with a move");
    malformed("curve with one point", OfTypes("023"), "the curve before element 3 is broken");
    malformed("curve with a line in it", OfTypes("0231"), "the curve before element 3 is broken");
    malformed("curve in a curve", OfTypes("0223"), "the curve before element 2 is broken");
    malformed("curve with three points", OfTypes("02333"), "the curve before element 4 is broken");
    malformed("points without a curve", OfTypes("033"), "the curve before element 1 is broken");
    malformed("starts before itself", Outline(corner, -1),
              "its last contour begins at element -1 of 2");
    malformed("starts behind itself", Outline(corner, 2),
              "its last contour begins at element 2 of 2");
    malformed("fill rule above all", Outline(corner, 0, 2), "it has the unknown fill rule 2");
    malformed("fill rule below all", Outline(corner, 0, -1), "it has the unknown fill rule -1");
    malformed("not a number", Outline(move + Element(1, nan, 4)), "element 1 is at (nan, 4)");
    malformed("infinite", Outline(move + Element(1, 3, -infinite)), "element 1 is at (3, -inf)");
    malformed("too far right", Outline(Element(0, 1000001, 2)), "element 0 is at (1000001, 2)");
    malformed("too far up", Outline(Element(0, 1, -1000001)), "element 0 is at (1, -1000001)");
    malformed("too many elements", Polyline(65537), "65537 elements, more than 65536");
    return samples;
}

inline QVector<Sample> DescentSamples()
{
    const QByteArray two = Serialized(2, 4, -5);
    return {{"sound", two, {4, -5}, ""},
            {"bytes behind", two + "more", {4, -5}, ""},
            {"none", Serialized(0), {}, ""},
            {"nothing", "", {}, "it holds no Base64 text"},
            {"half a count", two.left(2), {}, "it ends before the number of its entries"},
            {"cut", two.chopped(1), {}, "it announces 2 entries and has room for 1"},
            {"as many as there can be",
             Serialized(-1, 4),
             {},
             "it announces 4294967295 entries and has room for 1"}};
}

/** Whole data files of which nothing is read, whichever they are. */
inline QVector<Sample> FileSamples()
{
    const QString noLength = "it has no length of 4 bytes at its beginning";
    return {{"empty", "", {}, noLength},
            {"three bytes", "abc", {}, noLength},
            {"null array", Serialized(-1) + "text", {}, "it holds a null array"},
            {"length without bytes",
             Serialized(0x7fffffff) + "QUJD",
             {},
             "it announces 2147483647 bytes and has 4"},
            {"length past the end by one",
             Serialized(5) + "QUJD",
             {},
             "it announces 5 bytes and has 4"},
            {"no Base64",
             Serialized(QByteArray("\x80\xff !\"#$%&'()*,-.\n\0\t", 20)),
             {},
             "it holds no Base64 text"}};
}

} // namespace Glyphs
