/**
 * @file
 * Integrators: replace with the host's own header; the plugin needs what is declared here.
 */
#ifndef LW_HEFFECTNODE_H
#define LW_HEFFECTNODE_H

#include "hcontentnode.h"

namespace Lw {

/** A content node whose pages are held after they have entered. */
class HEffectNode : public HContentNode
{
    Q_OBJECT

public:
    explicit HEffectNode(QObject* parent = 0);

    /** In units of 100 ms; 0 and below: no hold. */
    int GetHoldTime() const;
    void SetHoldTime(int hold);

private:
    int holdTime = 0;
};

} // namespace Lw

#endif
