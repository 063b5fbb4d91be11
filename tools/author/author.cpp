#include "author/author.h"

namespace AnimText {

bool AuthorNode(const TextSource& source, const SceneNode& settings, const NodeMotion& motion,
                AuthoredNode* authored, QString* error)
{
    if (!LayOut(source.text, source, motion, settings.size, authored, error))
        return false;
    SceneNode& node = authored->node;
    node = settings;
    node.size = authored->area;
    SetMotion(&node, motion);
    node.attributes[QStringLiteral("Text")] = authored->text;
    node.lists = authored->lists;
    return true;
}

} // namespace AnimText
