#include "author/author.h"

namespace AnimText::author {

bool AuthorNode(const TextSource& source, const scene::SceneNode& settings,
                const scene::NodeMotion& motion, AuthoredNode* authored, QString* error)
{
    if (!layout::LayOut(source.text, source, motion, settings.size, authored, error))
        return false;
    scene::SceneNode& node = authored->node;
    node = settings;
    node.size = authored->area;
    scene::SetMotion(&node, motion);
    node.attributes["Text"] = authored->text;
    node.lists = authored->lists;
    return true;
}

} // namespace AnimText::author
