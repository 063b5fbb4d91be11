#include "hdata.h"

namespace Lw {

HData::HData(QObject* parent)
    : QObject(parent)
{
}

HData::~HData()
{
    qDeleteAll(lists);
}

QString HData::Type()
{
    return QString();
}

int HData::Level()
{
    return 0;
}

QString HData::GetAttribute(QString key) const
{
    return attributes.value(key);
}

int HData::GetAttributeToInt(QString key) const
{
    return attributes.value(key).toInt();
}

HList* HData::GetList(QString key) const
{
    return lists.value(key);
}

QString HData::GetFirstFile(QString key) const
{
    const QStringList paths = files.value(key);
    return paths.isEmpty() ? QString() : paths.first();
}

void HData::SetAttribute(QString key, QString value)
{
    attributes.insert(key, value);
}

void HData::SetAttribute(QString key, int value)
{
    attributes.insert(key, QString::number(value));
}

void HData::SetList(QString key, const QList<QHash<QString, QString>>& rows)
{
    // The rows may come from the list that is replaced.
    HList* const list = new HList(rows);
    delete lists.take(key);
    lists.insert(key, list);
}

void HData::SetFiles(QString key, QStringList paths)
{
    files.insert(key, paths);
}

void HData::RemoveKey(QString key)
{
    attributes.remove(key);
    delete lists.take(key);
    files.remove(key);
}

void HData::CopyData(const HData& from)
{
    if (&from == this)
        return;
    attributes = from.attributes;
    files = from.files;
    qDeleteAll(lists);
    lists.clear();
    for (QHash<QString, HList*>::const_iterator i = from.lists.begin(); i != from.lists.end(); ++i)
        lists.insert(i.key(), new HList(i.value()->items()));
}

} // namespace Lw
