#include "hcontentnode.h"

namespace Lw {

HContentNode::HContentNode(QObject* parent)
    : HNode(parent)
    , areaSize(0, 0)
{
}

int HContentNode::Level()
{
    return 4; // below program, page and area
}

QSize HContentNode::Size()
{
    return areaSize;
}

int HContentNode::FrameHeight()
{
    return 0;
}

QPoint HContentNode::Pos()
{
    return areaPos;
}

void HContentNode::ON_SizeChange(QSize size)
{
    SetSize(size);
}

void HContentNode::SetSize(QSize size)
{
    areaSize = size;
}

void HContentNode::SetPos(QPoint pos)
{
    areaPos = pos;
}

} // namespace Lw
