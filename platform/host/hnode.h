/**
 * @file
 * Integrators: replace with the host's own header; the plugin needs what is declared here, the
 * virtual operations in this order.
 */
#ifndef LW_HNODE_H
#define LW_HNODE_H

#include "hdata.h"

#include <QList>

class QDomElement;

namespace Lw {

struct FileInfo;
struct HSendFileInfo;

/**
 * A node of the host's tree: program, page, area and what plays in an area. A parent owns its
 * children and deletes them with itself; a node that is deleted leaves its parent's list.
 */
class HNode : public HData
{
    Q_OBJECT

public:
    explicit HNode(QObject* parent = 0);

    // Saving, sending and copying are for the host; here they do nothing and return false or null.
    virtual bool UpdateNode(QDomElement&, QList<FileInfo>&) { return false; }
    virtual HNode* Copy() { return 0; }
    /** Deletes the node when control returns to the event loop. */
    virtual void Delete();
    virtual void Close(bool) {}
    virtual bool Generator(QString, QList<HSendFileInfo>&) { return false; }
    virtual bool Export(QString) { return false; }
    virtual bool Import(QString) { return false; }
    virtual void NodeAlready() {}
    virtual void ControllerChange() {}
    virtual void InitData() {}
    virtual void SDKInitData(void*) {}
    /** Copies every attribute, list and file of @p from. */
    virtual void ReloadAtrrbute(HNode* from);
    /** Play time in milliseconds; here the sum of the children's, 0 without any. */
    virtual int Duration();

    /** Null at the root. */
    HNode* ParentNode() const;
    /** In the order in which they were added. */
    QList<HNode*> ChildNodes() const;
    /** Appends @p child and takes ownership of it; ignored if it would make a cycle. */
    void AddChild(HNode* child);
};

} // namespace Lw

#endif
