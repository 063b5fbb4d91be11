#include "scene/schema.h"

#include "scene/attributes.h"

namespace AnimText {

namespace {

QStringList Sorted(QStringList keys)
{
    keys.sort();
    return keys;
}

QStringList AttributeKeys(bool texts)
{
    QStringList keys;
    for (const Attribute& attribute : Attributes()) {
        if (attribute.home == Home::Attributes && (attribute.kind == ValueKind::Text) == texts)
            keys.append(QLatin1String(attribute.key));
    }
    return Sorted(keys);
}

} // namespace

const QStringList& TextAttributeKeys()
{
    static const QStringList keys = AttributeKeys(true);
    return keys;
}

const QStringList& NumberAttributeKeys()
{
    static const QStringList keys = AttributeKeys(false);
    return keys;
}

const QStringList& ListKeys()
{
    static const QStringList keys{QStringLiteral("TextAttribute"), QStringLiteral("TextHeight"),
                                  QStringLiteral("TextWidth")};
    return keys;
}

QStringList RowFields(const QString& key)
{
    static const QStringList fields[] = {KeysOf(Home::TextAttribute), KeysOf(Home::TextHeight),
                                         KeysOf(Home::TextWidth)};
    const int list = ListKeys().indexOf(key);
    return list < 0 ? QStringList() : fields[list];
}

const QStringList& FileKeys()
{
    static const QStringList keys = Sorted(KeysOf(Home::Files));
    return keys;
}

} // namespace AnimText
