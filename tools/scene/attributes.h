/**
 * @file
 * What a scene file may say of a text: the one table that reading, validating, forms, documents and
 * the JSON Schema come from.
 */
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <limits>

namespace AnimText::scene {

struct SceneNode;

/** Where a value stands in the scene file. */
enum class Home {
    Node,          ///< a key of the node itself
    Attributes,    ///< a key of the node's "attributes"
    TextAttribute, ///< a field of a row of the list of that name, as are the next two
    TextHeight,
    TextWidth,
    Files ///< a key of the node's "files"
};

/** What a form shows together. */
enum class Group { Text, Motion, Place, Background };

enum class ValueKind {
    Text,
    Number, ///< a whole number
    Choice, ///< a whole number with a name for each value
    Flag,   ///< 0 or 1; only 1 is on
    Color,  ///< 0xRRGGBB as a whole number
    Pair,   ///< a list of two whole numbers
    File    ///< the name of a file, relative to the scene's folder or absolute
};

/** A value that another key must have for an attribute to apply. */
struct Need
{
    const char* key = nullptr; ///< of the node's attributes, or "neonEffect"
    int least = 0;
    int most = 0;
};

/** When an attribute applies. */
struct Use
{
    const char* usedBy = "";
    const char* unusedBecause = ""; ///< empty where it always applies
    Need needs[2] = {};             ///< both must hold; a range without values never does
};

/** One row of the table. Its words are English; Translated() gives those of the program. */
struct Attribute
{
    static constexpr int lowest = std::numeric_limits<int>::min();
    static constexpr int highest = std::numeric_limits<int>::max();

    ValueKind kind = ValueKind::Text;
    const char* key = nullptr;
    const char* name = nullptr;    ///< a short label
    const char* meaning = nullptr; ///< what it is, in a few words
    Home home = Home::Attributes;
    Group group = Group::Text;
    int SceneNode::*field = nullptr; ///< where the node has its number, if not in "attributes"
    const char* unit = "";           ///< "pixels"; empty for none
    int least = 0, most = 0;    ///< of a number, and of both in a pair: what makes sense on the
                                ///< sign, which takes 0 where the file says nothing
    QList<const char*> choices; ///< the names of a choice's values from its least on
    Use use;
};

/** All of them; those of a group in the order in which a form shows them. */
const QList<Attribute>& Attributes();

/** Null when there is none. No two have the same key. */
const Attribute* FindAttribute(const QString& key);

/** The keys of @p home, in the order in which a scene is written. */
QStringList KeysOf(Home home);
/** The lists with a row for each character, in that order, and the fields of the rows of one. */
const QStringList& ListKeys();
QStringList RowFields(const QString& list);

/** The number that @p node has for it, in its attributes or by itself. */
int NumberOf(const SceneNode& node, const Attribute& attribute);
void SetNumber(SceneNode* node, const Attribute& attribute, int number);

/** The names of a choice's values, in the program's language; empty for other kinds. */
QStringList ChoicesOf(const Attribute& attribute);

/** "0 to 9", "1 or more", "0 or 1", "any whole number", "0 linear, 1 radial or 2 conical". */
QString RangeInWords(const Attribute& attribute);
/** Whether @p value is within the range. */
bool IsInRange(const Attribute& attribute, int value);

/**
 * Whether the sign uses the attribute with the other settings of @p node. If not, @p why, which may
 * be null, gets the reason in the program's language.
 */
bool IsUsed(const Attribute& attribute, const SceneNode& node, QString* why = nullptr);

/** @p words of the table in the program's language. */
QString Translated(const char* words);

} // namespace AnimText::scene
