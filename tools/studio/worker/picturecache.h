/**
 * @file
 * Pictures of a play by their ticks, as many as there is memory for.
 */
#ifndef ANIMTEXT_PICTURECACHE_H
#define ANIMTEXT_PICTURECACHE_H

#include <QHash>
#include <QImage>

namespace AnimText {

/** What is farthest from the tick that is looked at goes first. Equal neighbours cost once. */
class PictureCache
{
public:
    /** @param capacity bytes */
    explicit PictureCache(qint64 capacity);

    void Clear();
    bool Has(int tick) const { return entries.contains(tick); }
    QImage Find(int tick) const { return entries.value(tick).picture; }
    QByteArray Calls(int tick) const { return entries.value(tick).calls; }
    /** @param wanted the tick that is looked at */
    void Insert(int tick, const QImage& picture, const QByteArray& calls, int wanted);

    /** Ticks from @p tick on whose pictures are all there. */
    int RunFrom(int tick) const;
    /** How many different pictures of that size there is room for; at least 4. */
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
    QHash<int, Entry> entries;
    QHash<qint64, int> uses; // entries by the key of their picture
};

} // namespace AnimText

#endif
