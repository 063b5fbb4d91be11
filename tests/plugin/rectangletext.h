/**
 * @file
 * Texts whose glyphs are rectangles, in real data files: where the corners of a glyph stand tells
 * its place, its pivot and the order of its transforms.
 */
#pragma once

#include "node/hanimationtextnode.h"
#include "serialized.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using Lw::HNodeAnimationText::HAnimationTextNode;

inline void WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

/** A data file: a byte array that holds @p inner in Base64. */
inline void WriteGlyphData(const QString& path, const QByteArray& inner)
{
    WriteFile(path, Serialized(inner.toBase64()));
}

/** Glyph outlines of @p widths and @p heights: of unlike margins on all four sides. */
inline QVector<QPainterPath> RectangleGlyphs(const QVector<int>& widths,
                                             const QVector<int>& heights)
{
    QVector<QPainterPath> glyphs(widths.size());
    for (int i = 0; i < widths.size(); ++i) {
        const qreal w = widths.at(i); // any int at all
        const qreal h = heights.value(i);
        glyphs[i].addRect(2, 4 - h, w - 5, h - 6); // from (2, 4 - h) to (w - 3, -2)
    }
    return glyphs;
}

inline void SetList(HAnimationTextNode& node, const char* key, const char* field,
                    const QVector<int>& numbers)
{
    QList<QHash<QString, QString>> rows;
    for (int number : numbers)
        rows.append({{field, QString::number(number)}});
    node.SetList(key, rows);
}

/** @p count characters for a text. */
inline QString Letters(int count)
{
    return QString(count, 'x');
}

/** A node with a text of rectangles; the first entry of each list belongs to character 0. */
class RectangleText
{
public:
    RectangleText(const QVector<int>& widths, const QVector<int>& heights,
                  const QVector<int>& descents, QSize area)
        : node(new HAnimationTextNode)
    {
        SetGlyphs(RectangleGlyphs(widths, heights));
        WriteGlyphData(File("descents"), Serialized(descents));
        node->SetFiles("PathData", {File("paths")});
        node->SetFiles("DescentVector", {File("descents")});
        SetList(*node, "TextWidth", "text_width", widths);
        SetList(*node, "TextHeight", "text_height", heights);
        node->SetAttribute("Text", Letters(widths.size()));
        node->SetSize(area);
        Set({{"AnimationSpeed", 5}, {"ContinueSpeed", 5}, {"PlayTimes", 1}});
    }

    /** The text of most tests: two pages of two characters and one, odd halves in all places. */
    static RectangleText TwoPages()
    {
        return RectangleText({30, 20, 40}, {20, 25, 16}, {4, 5, 3}, QSize(60, 41));
    }

    void Set(std::initializer_list<std::pair<const char*, int>> attributes)
    {
        for (const auto& attribute : attributes)
            node->SetAttribute(attribute.first, attribute.second);
    }

    void SetGlyphs(const QVector<QPainterPath>& glyphs)
    {
        WriteGlyphData(File("paths"), Serialized(glyphs));
    }

    QString File(const char* name) const { return directory->filePath(name); }

    std::unique_ptr<QTemporaryDir> directory{new QTemporaryDir};
    std::unique_ptr<HAnimationTextNode> node;
};

/** The pixels that are neither transparent nor black; null when there are none. */
inline QRect PaintedBox(const QImage& image)
{
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    int left = pixels.width(), right = -1, top = -1, bottom = -1;
    for (int y = 0; y < pixels.height(); ++y) {
        const QRgb* const row = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
        for (int x = 0; x < pixels.width(); ++x)
            if (row[x] != 0 && row[x] != qRgb(0, 0, 0)) {
                left = qMin(left, x);
                right = qMax(right, x);
                top = top < 0 ? y : top;
                bottom = y;
            }
    }
    return right < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
}

/** The messages of a scope, in order. */
class Messages
{
public:
    Messages()
        : before(qInstallMessageHandler(Take))
    {
        Taken().clear();
    }
    ~Messages() { qInstallMessageHandler(before); }

    static QStringList& Taken()
    {
        static QStringList messages;
        return messages;
    }

private:
    static void Take(QtMsgType, const QMessageLogContext&, const QString& message)
    {
        Taken().append(message);
    }

    QtMessageHandler before;
};
