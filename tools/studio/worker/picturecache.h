/**
 * @file
 * A cache of pictures by tick, with a memory limit.
 */
#pragma once

#include <QHash>
#include <QImage>
#include <QMap>

namespace AnimText::studio::worker {

/** Removes the pictures farthest from the shown tick first. Equal neighbors share memory. */
class PictureCache
{
public:
    /** @param capacity bytes */
    explicit PictureCache(qint64 capacity);

    void Clear();
    bool Has(int tick) const { return entries.contains(tick); }
    QImage Find(int tick) const { return entries.value(tick).picture; }
    QByteArray Calls(int tick) const { return entries.value(tick).calls; }
    /** @param wanted the tick that is shown */
    void Insert(int tick, const QImage& picture, const QByteArray& calls, int wanted);

    /** Number of consecutive ticks from @p tick on whose pictures are cached. */
    int RunFrom(int tick) const;
    /** Number of different pictures of that size that fit; at least 4. */
    int Room(const QSize& size) const;
    qint64 Bytes() const { return bytes; }

private:
    struct Entry
    {
        QImage picture;
        QByteArray calls;
    };

    void Remove(int tick);

    qint64 capacity;
    qint64 bytes = 0;
    QMap<int, Entry> entries;
    QHash<qint64, int> uses; // number of entries by picture key
};

} // namespace AnimText::studio::worker
