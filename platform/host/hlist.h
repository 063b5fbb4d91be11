/**
 * @file
 * Integrators: replace with the host's own header; the plugin needs what is declared here.
 */
#ifndef LW_HLIST_H
#define LW_HLIST_H

#include <QHash>
#include <QList>
#include <QString>

namespace Lw {

/** A list-valued attribute: rows in order, each a record of named strings. */
class HList
{
public:
    HList() {}
    explicit HList(const QList<QHash<QString, QString>>& rows)
        : rows(rows)
    {
    }

    /** The rows, shared and not copied. */
    QList<QHash<QString, QString>> items() const { return rows; }

private:
    QList<QHash<QString, QString>> rows;
};

} // namespace Lw

#endif
