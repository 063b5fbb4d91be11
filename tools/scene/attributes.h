/**
 * @file
 * What a scene file may say of a text: the one table that reading, validating, forms, documents and
 * the JSON Schema come from.
 */
#ifndef ANIMTEXT_ATTRIBUTES_H
#define ANIMTEXT_ATTRIBUTES_H

#include <QList>
#include <QString>
#include <QStringList>

namespace AnimText {

struct SceneNode;

/** Where a value stands in the scene file. */
enum class Home {
    Node,          ///< a key of the node itself
    Attributes,    ///< a key of the node's "attributes"
    TextAttribute, ///< a field of a row of the list of that name, as are the next two
    TextWidth,
    TextHeight,
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

/** The value of another key that an attribute needs to be heeded. */
struct Need
{
    const char* key = nullptr; ///< of the node's attributes, or "neonEffect"
    int least = 0;
    int most = 0;
};

/** One row of the table. Its words are English; Translated() gives those of the program. */
struct Attribute
{
    const char* key;
    Home home;
    Group group;
    ValueKind kind;
    const char* name;    ///< a short label
    const char* meaning; ///< what it is, in a few words
    const char* unit;    ///< "pixels"; empty for none
    int least, most;     ///< of a number, and of both in a pair: what makes sense on the sign
    int standard;        ///< what the sign takes where the file says nothing; texts are then empty
    const char* heededBy;
    const char* elseSaid = ""; ///< why it is not heeded, where that can be
    Need needs[2] = {};        ///< both hold where it is heeded; a range without values: never
};

/** In the order in which a form shows them. */
const QList<Attribute>& Attributes();

/** Null when there is none. */
const Attribute* FindAttribute(Home home, const QString& key);

/** The keys of @p home, in the order of the table. */
QStringList KeysOf(Home home);

/** The names of a choice's values from its least on; empty for other kinds. */
QStringList ChoicesOf(const Attribute& attribute);

/** "0 to 9", "1 or more", "0 or 1", "any whole number". */
QString RangeInWords(const Attribute& attribute);
/** Whether @p value is within the range. */
bool IsInRange(const Attribute& attribute, int value);

/**
 * Whether the sign looks at the attribute as @p node is set. If not, @p why may take the reason, in
 * the program's language.
 */
bool IsHeeded(const Attribute& attribute, const SceneNode& node, QString* why = nullptr);

/** @p words of the table in the program's language. */
QString Translated(const char* words);

} // namespace AnimText

#endif
