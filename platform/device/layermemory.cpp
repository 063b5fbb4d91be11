#include "layermemory.h"

#include <deque>

#include <sys/mman.h>
#include <unistd.h>

namespace Torv {

namespace {

// Address space that freed layers may keep occupied; enough for the last few seconds of restarts.
const qint64 QuarantineBytes = qint64(64) << 20;

struct Region
{
    char* start;
    qint64 bytes;
};

/** Freed layers, oldest first: no access, no memory behind them, their addresses not yet reused. */
class Quarantine
{
public:
    void Take(const Region& region)
    {
        // Mapping again, unlike mprotect(), also returns the pages to the system.
        void* const sealed = mmap(region.start, size_t(region.bytes), PROT_NONE,
                                  MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE | MAP_FIXED, -1, 0);
        if (sealed == MAP_FAILED) {
            munmap(region.start, size_t(region.bytes));
            return;
        }
        regions.push_back(region);
        bytes += region.bytes;
        while (bytes > QuarantineBytes) {
            const Region oldest = regions.front();
            regions.pop_front();
            bytes -= oldest.bytes;
            munmap(oldest.start, size_t(oldest.bytes));
        }
    }

private:
    std::deque<Region> regions;
    qint64 bytes = 0;
};

// Never destroyed: layers may be freed by destructors that run at exit.
Quarantine& TheQuarantine()
{
    static Quarantine* const quarantine = new Quarantine;
    return *quarantine;
}

} // namespace

LayerMemory::~LayerMemory()
{
    if (start) {
        const Region region = {start, 2 * span};
        TheQuarantine().Take(region);
    }
}

bool LayerMemory::Allocate(qint64 bytes)
{
    const qint64 page = sysconf(_SC_PAGESIZE);
    const qint64 wholePages = (bytes + page - 1) / page * page;
    void* const mapped = mmap(0, size_t(2 * wholePages), PROT_READ | PROT_WRITE,
                              MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (mapped == MAP_FAILED)
        return false;
    start = static_cast<char*>(mapped);
    span = wholePages;
    return true;
}

char* LayerMemory::Buffer(int index) const
{
    return start ? start + index * span : 0;
}

void LayerMemory::Protect(int index, bool readOnly) const
{
    if (start)
        mprotect(Buffer(index), size_t(span), readOnly ? PROT_READ : PROT_READ | PROT_WRITE);
}

} // namespace Torv
