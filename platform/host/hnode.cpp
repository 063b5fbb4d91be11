#include "hnode.h"

#include <climits>

namespace Lw {

HNode::HNode(QObject* parent)
    : HData(parent)
{
}

void HNode::Delete()
{
    deleteLater();
}

void HNode::ReloadAtrrbute(HNode* from)
{
    if (from)
        CopyData(*from);
}

int HNode::Duration()
{
    const QList<HNode*> nodes = ChildNodes();
    qint64 sum = 0;
    for (int i = 0; i < nodes.size(); ++i)
        sum += nodes.at(i)->Duration();
    return int(qBound(qint64(INT_MIN), sum, qint64(INT_MAX)));
}

HNode* HNode::ParentNode() const
{
    return qobject_cast<HNode*>(parent());
}

QList<HNode*> HNode::ChildNodes() const
{
    QList<HNode*> nodes;
    const QObjectList& all = children();
    for (int i = 0; i < all.size(); ++i) {
        // A child that is being deleted is no longer a node, so the cast returns null.
        if (HNode* const node = qobject_cast<HNode*>(all.at(i)))
            nodes.append(node);
    }
    return nodes;
}

void HNode::AddChild(HNode* child)
{
    // A tree has no cycles: neither this node nor its ancestors can become its child.
    for (const QObject* above = this; above; above = above->parent()) {
        if (above == child)
            return;
    }
    if (child)
        child->setParent(this);
}

} // namespace Lw
