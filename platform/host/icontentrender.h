/**
 * @file
 * Integrators: replace with the host's own header; the plugin needs what is declared here, the
 * virtual operations in this order.
 */
#ifndef LW_ICONTENTRENDER_H
#define LW_ICONTENTRENDER_H

namespace Lw {

/** Plays one node in an area of a display. */
class IContentRender
{
public:
    virtual ~IContentRender();
    /** @param displayHandle the display output; 0 is none */
    virtual void Start(unsigned int displayHandle) = 0;
    /** Pauses the play, or resumes it. */
    virtual void Pause() = 0;
    virtual void Stop() = 0;
    virtual void Remove() = 0;
    virtual void PlayNext() = 0;
    /** 0 finished, 1 playing, 2 nothing to play. */
    virtual int renderState() = 0;
    virtual void PrepareData() {}
    virtual void Seek(long long) {}
    virtual void AreaFinish() {}
};

} // namespace Lw

#endif
