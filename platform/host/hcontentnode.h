/**
 * @file
 * Integrators: replace with the host's own header; the plugin needs what is declared here, the
 * virtual operations in this order.
 */
#ifndef LW_HCONTENTNODE_H
#define LW_HCONTENTNODE_H

#include "hnode.h"

#include <QPoint>
#include <QSize>

namespace Lw {

/** A node that plays in a rectangle of the display, in pixels. */
class HContentNode : public HNode
{
    Q_OBJECT

public:
    explicit HContentNode(QObject* parent = 0);

    int Level() override;
    /** Of the node's area. */
    virtual QSize Size();
    /** Of the frame around the area; 0 without one. */
    virtual int FrameHeight();
    /** Of the area's top left corner on the display. */
    virtual QPoint Pos();
    virtual void ON_SizeChange(QSize size);

    void SetSize(QSize size);
    void SetPos(QPoint pos);

private:
    QSize areaSize;
    QPoint areaPos;
};

} // namespace Lw

#endif
