/**
 * @file
 * Integrators: replace with the host's own header; the plugin needs what is declared here.
 */
#ifndef LW_HNEONNODEBASE_H
#define LW_HNEONNODEBASE_H

#include "heffectnode.h"

namespace Lw {

/** An effect node that may have a neon background. It has no meta-object of its own. */
class HNeonNodeBase : public HEffectNode
{
public:
    explicit HNeonNodeBase(QObject* parent = 0);
    ~HNeonNodeBase() override;

    /** The neon style: 1 .. 28 a border that is drawn (0 the first one), above 28 the pictures of
     * "NeonGifPath". */
    int GetNeonEffect() const;
    void SetNeonEffect(int effect);

private:
    int neonEffect = 0;
};

} // namespace Lw

#endif
