// What a display shows: the sessions on it, each with its layers, blended into one picture.

#include "display.h"
#include "scroll.h"
#include "sessionstore.h"

#include <algorithm>

namespace Torv {

namespace {

struct Range
{
    qint64 from;
    qint64 to;

    bool IsEmpty() const { return from >= to; }
};

Range Intersection(const Range& a, const Range& b)
{
    const Range common = {qMax(a.from, b.from), qMin(a.to, b.to)};
    return common;
}

Range Extent(qint64 from, qint64 length)
{
    const Range extent = {from, from + length};
    return extent;
}

/** Source over destination, neither premultiplied; a picture alone keeps its exact bytes. */
QRgb Over(QRgb source, QRgb destination)
{
    const int alpha = qAlpha(source);
    const int below = qAlpha(destination) * (255 - alpha);
    if (alpha == 0)
        return destination;
    if (below == 0)
        return source;
    const int sum = alpha * 255 + below;
    const int half = sum / 2;
    return qRgba((qRed(source) * alpha * 255 + qRed(destination) * below + half) / sum,
                 (qGreen(source) * alpha * 255 + qGreen(destination) * below + half) / sum,
                 (qBlue(source) * alpha * 255 + qBlue(destination) * below + half) / sum,
                 (sum + 127) / 255);
}

void BlendRow32(QRgb* destination, const char* source, qint64 pixels)
{
    const QRgb* const row = reinterpret_cast<const QRgb*>(source);
    for (qint64 i = 0; i < pixels; ++i)
        destination[i] = Over(row[i], destination[i]);
}

void BlendRow24(QRgb* destination, const char* source, qint64 pixels, unsigned int colorKey,
                bool isBlackTransparent)
{
    const uchar* from = reinterpret_cast<const uchar*>(source);
    for (qint64 i = 0; i < pixels; ++i, from += 3) {
        const unsigned int color = unsigned(from[0]) << 16 | unsigned(from[1]) << 8 | from[2];
        if (color != colorKey && (color != 0 || !isBlackTransparent))
            destination[i] = 0xFF000000 | color;
    }
}

/** The place of a blend value in the stack: 0 below 2 below 1. */
int Rank(const Layer& layer)
{
    return layer.blend == 0 ? 0 : 3 - layer.blend;
}

bool LiesBelow(const Layer* a, const Layer* b)
{
    return Rank(*a) < Rank(*b);
}

class SessionComposer
{
public:
    SessionComposer(QImage& picture, const Session& session, qint64 milliseconds)
        : picture(picture)
        , session(session)
        , scroll(ScrollPosition(session.effect, session.placement.width, session.layers[0]->width,
                                milliseconds - session.addedAt))
    {
        const PicPlacement& area = session.placement;
        columns = Intersection(Extent(area.x, area.width), Extent(0, picture.width()));
        rows = Intersection(Extent(area.y, area.height), Extent(0, picture.height()));
    }

    void Compose()
    {
        std::vector<const Layer*> stack;
        for (size_t i = 0; i < session.layers.size(); ++i)
            stack.push_back(session.layers[i].get());
        std::stable_sort(stack.begin(), stack.end(), LiesBelow);
        for (size_t i = 0; i < stack.size(); ++i) {
            if (!stack[i]->IsEmpty())
                Paint(*stack[i], i > 0);
        }
    }

private:
    void Paint(const Layer& layer, bool isAboveLowest)
    {
        // The device moves the base layer; the appended layers do not move.
        const bool isBase = &layer == session.layers[0].get();
        const qint64 left = session.placement.x + (isBase ? scroll : 0);
        const qint64 top = session.placement.y;
        const Range shownColumns = Intersection(columns, Extent(left, layer.width));
        const Range shownRows = Intersection(rows, Extent(top, layer.height));
        if (shownColumns.IsEmpty())
            return;

        const qint64 pixels = shownColumns.to - shownColumns.from;
        for (qint64 y = shownRows.from; y < shownRows.to; ++y) {
            QRgb* const to = reinterpret_cast<QRgb*>(picture.scanLine(int(y))) + shownColumns.from;
            const char* const from = layer.Shown() + (y - top) * layer.bytesPerLine +
                                     (shownColumns.from - left) * session.BytesPerPixel();
            if (session.BytesPerPixel() == 4)
                BlendRow32(to, from, pixels);
            else
                BlendRow24(to, from, pixels, layer.colorKey, isAboveLowest);
        }
    }

    QImage& picture;
    const Session& session;
    const qint64 scroll;
    Range columns;
    Range rows;
};

} // namespace

QImage Display::Compose(qint64 milliseconds) const
{
    QImage picture(size, QImage::Format_ARGB32);
    if (picture.isNull())
        return picture;
    picture.fill(0);
    const QList<Session*> sessions = SessionStore::Instance().OnDisplay(handle);
    for (int i = 0; i < sessions.size(); ++i)
        SessionComposer(picture, *sessions.at(i), milliseconds).Compose();
    return picture;
}

} // namespace Torv
