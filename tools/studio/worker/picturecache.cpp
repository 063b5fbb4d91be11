#include "studio/worker/picturecache.h"

#include <algorithm>

namespace AnimText::studio::worker {

PictureCache::PictureCache(qint64 capacity)
    : capacity(capacity)
{
}

void PictureCache::Clear()
{
    entries.clear();
    uses.clear();
    bytes = 0;
}

void PictureCache::Insert(int tick, const QImage& picture, const QByteArray& calls, int wanted)
{
    if (Has(tick))
        Remove(tick);
    entries.insert(tick, {picture, calls});
    if (++uses[picture.cacheKey()] == 1)
        bytes += picture.sizeInBytes();
    bytes += calls.size();
    while (bytes > capacity && entries.size() > 1) {
        const bool isFirst = wanted - entries.firstKey() > entries.lastKey() - wanted;
        Remove(isFirst ? entries.firstKey() : entries.lastKey());
    }
}

void PictureCache::Remove(int tick)
{
    const Entry entry = entries.take(tick);
    bytes -= entry.calls.size();
    const auto use = uses.find(entry.picture.cacheKey());
    if (use == uses.end() || --*use > 0)
        return;
    uses.erase(use);
    bytes -= entry.picture.sizeInBytes();
}

int PictureCache::RunFrom(int tick) const
{
    int end = tick;
    while (Has(end))
        ++end;
    return end - tick;
}

int PictureCache::Room(const QSize& size) const
{
    const qint64 each = std::max<qint64>(1, qint64(size.width()) * size.height() * 4);
    return int(std::max<qint64>(4, std::min<qint64>(capacity / each, 1000000)));
}

} // namespace AnimText::studio::worker
