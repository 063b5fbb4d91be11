/**
 * @file
 * Integrators: replace with the host's own header; the plugin needs what is declared here.
 */
#ifndef LW_HDATA_H
#define LW_HDATA_H

#include "hlist.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

namespace Lw {

/**
 * The host's attribute store: strings, numbers, lists of rows and files, each by key. A key that is
 * absent reads as an empty string, 0, null or an empty path.
 */
class HData : public QObject
{
    Q_OBJECT

public:
    explicit HData(QObject* parent = 0);
    ~HData() override;

    /** The node type's name; empty here. */
    virtual QString Type();
    /** The rank of the node in its tree; 0 here. */
    virtual int Level();

    QString GetAttribute(QString key) const;
    /** The attribute as a decimal number; 0 when it is absent or not a number. */
    int GetAttributeToInt(QString key) const;
    /** The list under @p key, owned by the store; null when there is none. */
    HList* GetList(QString key) const;
    /** The full path of the first file under @p key; empty when there is none. */
    QString GetFirstFile(QString key) const;

    void SetAttribute(QString key, QString value);
    void SetAttribute(QString key, int value);
    /** Replaces the list under @p key. */
    void SetList(QString key, const QList<QHash<QString, QString>>& rows);
    /** Replaces the files under @p key. @param paths full paths */
    void SetFiles(QString key, QStringList paths);
    /** Removes everything under @p key. */
    void RemoveKey(QString key);

protected:
    /** Replaces everything with a copy of @p from. */
    void CopyData(const HData& from);

private:
    Q_DISABLE_COPY(HData)

    QHash<QString, QString> attributes;
    QHash<QString, HList*> lists;
    QHash<QString, QStringList> files;
};

} // namespace Lw

#endif
