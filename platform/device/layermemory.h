/**
 * @file
 * The memory of one layer. A renderer that paints into a freed layer would go unnoticed with
 * ordinary memory; here it crashes at once, with the painter still on the stack.
 */
#ifndef TORV_LAYERMEMORY_H
#define TORV_LAYERMEMORY_H

#include <QtGlobal>

namespace Torv {

/** Two buffers of zero bytes, each on pages of its own. */
class LayerMemory
{
public:
    LayerMemory() {}
    /** Makes the memory inaccessible and keeps its addresses out of use for a while. */
    ~LayerMemory();

    /** @param bytes of one buffer, above 0. @return false when there is no such memory */
    bool Allocate(qint64 bytes);

    /** @param index 0 or 1; null before Allocate() */
    char* Buffer(int index) const;

    /** Makes a buffer read-only, or writable again. */
    void Protect(int index, bool readOnly) const;

private:
    LayerMemory(const LayerMemory&);
    LayerMemory& operator=(const LayerMemory&);

    char* start = 0;
    qint64 span = 0; ///< of one buffer, whole pages
};

} // namespace Torv

#endif
