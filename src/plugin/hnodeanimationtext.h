#ifndef HNODEANIMATIONTEXT_H
#define HNODEANIMATIONTEXT_H

#include <inodeplugin.h>

#include <QObject>

namespace Lw {
namespace HNodeAnimationText {

/**
 * The plugin object: teaches the host the node type "LW_animationText_Plugin". It holds no state;
 * what it makes belongs to the caller and may outlive it.
 */
// moc 4.8 and moc 5 find the interface by its bare name only when the base is unqualified here.
class HNodeAnimationText : public QObject, public INodePlugin
{
    Q_OBJECT
    Q_INTERFACES(Lw::INodePlugin)
#if QT_VERSION >= 0x050000
    Q_PLUGIN_METADATA(IID "Lw.interface.INodePlugin/1.0")
#endif

public:
    HNodeAnimationText();

    /** 4. */
    int level() override;
    /** "LW_animationText_Plugin", as the nodes' Type() returns. */
    QString type() override;
    /** @param node made by Create(); it is not checked */
    IContentRender* CreateAreaRender(HNode* node) override;
    HNode* Create() override;
};

} // namespace HNodeAnimationText
} // namespace Lw

#endif
