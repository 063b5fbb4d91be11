/**
 * @file
 * Integrators: replace with the host's own header; the plugin needs what is declared here, the
 * virtual operations in this order.
 */
#ifndef LW_INODEPLUGIN_H
#define LW_INODEPLUGIN_H

#include <QIcon>
#include <QString>
#include <QtPlugin>

class QModelIndex;

namespace Lw {

class HModel;
class HNode;
class HVersion;
class IContentRender;

/** A node type that the host learns from a plugin. */
class INodePlugin
{
public:
    virtual ~INodePlugin();
    virtual QString name() { return QString(); }
    virtual int level() { return 5; }
    virtual QString type() { return QString(); }
    /** The icon of all plugins without one of their own. */
    virtual QIcon& icon();
    /** A new node, owned by the caller. */
    virtual HNode* Create() { return 0; }
    virtual void* GetClient() { return 0; }
    /** A new renderer for a node that this plugin created, owned by the caller. */
    virtual IContentRender* CreateAreaRender(HNode*) { return 0; }
    virtual IContentRender* CreateFrameRender(HNode*) { return 0; }
    virtual bool AddFile(HModel*, QModelIndex&, int) { return false; }
    virtual bool OverrideNewFile() { return false; }
    virtual bool NewFile(HModel*, QModelIndex&, int) { return false; }
    virtual void AppQuit() {}
    virtual bool AddFileBasisSuffix(QString, HModel*, QModelIndex&, int) { return false; }
    virtual bool AddFileBasisSupport(QString, HModel*, QModelIndex&, int) { return false; }
    virtual QString SupportSuffix() { return QString(); }
    virtual bool SuportController(QString&) { return true; }
    virtual bool ConvertVersion(HNode*, HVersion&) { return true; }
    virtual void D3DLoseDevice() {}
};

} // namespace Lw

Q_DECLARE_INTERFACE(Lw::INodePlugin, "Lw.interface.INodePlugin/1.0")

#endif
