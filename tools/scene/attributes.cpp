#include "scene/attributes.h"

#include "scene/scene.h"

#include <QCoreApplication>

#include <algorithm>

namespace AnimText::scene {

namespace {

bool Holds(const Need& need, const SceneNode& node)
{
    if (!need.key)
        return true;
    const int value = NumberOf(node, *FindAttribute(QLatin1String(need.key)));
    return value >= need.least && value <= need.most;
}

} // namespace

const Attribute* FindAttribute(const QString& key)
{
    for (const Attribute& attribute : Attributes()) {
        if (key == QLatin1String(attribute.key))
            return &attribute;
    }
    return nullptr;
}

QStringList KeysOf(Home home)
{
    QStringList keys;
    for (const Attribute& attribute : Attributes()) {
        if (attribute.home == home)
            keys.append(QLatin1String(attribute.key));
    }
    if (home == Home::Attributes || home == Home::Files)
        keys.sort();
    return keys;
}

const QStringList& ListKeys()
{
    static const QStringList keys{"TextAttribute", "TextHeight", "TextWidth"};
    return keys;
}

QStringList RowFields(const QString& list)
{
    const int index = ListKeys().indexOf(list);
    return index < 0 ? QStringList() : KeysOf(Home(int(Home::TextAttribute) + index));
}

int NumberOf(const SceneNode& node, const Attribute& attribute)
{
    return attribute.field ? node.*attribute.field
                           : node.attributes.value(QLatin1String(attribute.key)).toInt();
}

void SetNumber(SceneNode* node, const Attribute& attribute, int number)
{
    if (attribute.field)
        node->*attribute.field = number;
    else
        node->attributes[QLatin1String(attribute.key)] = number;
}

QStringList ChoicesOf(const Attribute& attribute)
{
    QStringList names;
    for (const char* name : attribute.choices)
        names.append(Translated(name));
    return names;
}

QString RangeInWords(const Attribute& attribute)
{
    constexpr int mostNamed = 4;
    const QStringList names = ChoicesOf(attribute);
    const auto words = [&](const char* pattern) {
        return Translated(pattern).arg(attribute.least);
    };
    if (!names.isEmpty() && names.size() <= mostNamed) {
        QStringList values;
        for (const QString& name : names)
            values.append(QStringLiteral("%1 %2").arg(attribute.least + values.size()).arg(name));
        const QString last = values.takeLast();
        return values.join(", ") + " or " + last;
    }
    if (attribute.least == Attribute::lowest)
        return Translated(QT_TRANSLATE_NOOP("Attributes", "any whole number"));
    if (attribute.most == Attribute::highest)
        return words(QT_TRANSLATE_NOOP("Attributes", "%1 or more"));
    if (attribute.most - attribute.least == 1)
        return words(QT_TRANSLATE_NOOP("Attributes", "%1 or %2")).arg(attribute.most);
    return words(QT_TRANSLATE_NOOP("Attributes", "%1 to %2")).arg(attribute.most);
}

bool IsInRange(const Attribute& attribute, int value)
{
    return value >= attribute.least && value <= attribute.most;
}

bool IsUsed(const Attribute& attribute, const SceneNode& node, QString* why)
{
    const bool isUsed = std::all_of(std::begin(attribute.use.needs), std::end(attribute.use.needs),
                                    [&](const Need& need) { return Holds(need, node); });
    if (!isUsed && why)
        *why = Translated(attribute.use.unusedBecause);
    return isUsed;
}

QString Translated(const char* words)
{
    return QCoreApplication::translate("Attributes", words);
}

} // namespace AnimText::scene
