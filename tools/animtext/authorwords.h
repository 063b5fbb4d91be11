/**
 * @file
 * The words of animtext author.
 */
#ifndef ANIMTEXT_AUTHORWORDS_H
#define ANIMTEXT_AUTHORWORDS_H

#include "animtext/commandline.h"
#include "author/author.h"

#include <QSize>
#include <QString>
#include <QStringList>

namespace AnimText {

/** What is wrong with the words, in one line. */
struct Misuse
{
    QString text;
};

/** Reads what an author asks for from the command's words. */
class AuthorWords
{
public:
    AuthorWords();

    /** @return false when the command ends here with ExitStatus(). @sa CommandLine::Parse() */
    bool Parse(const QStringList& words);
    int ExitStatus() const { return line.ExitStatus(); }
    /** @sa CommandLine::Misused() */
    int Misused(const Misuse& misuse) { return line.Misused(misuse.text); }

    // These throw Misuse.

    /** The scene file to write. */
    QString ScenePath() const;
    /** The wishes; @p notes takes a line on each change that the text needed. */
    AuthorOptions Options(QStringList* notes) const;
    /** The display's size, or an empty one when none was given. */
    QSize Display() const { return Size("display"); }

    bool Appends() const { return IsSet("append"); }
    bool WithoutAlpha() const { return IsSet("no-alpha"); }

private:
    QString Text() const;
    QFont Font() const;
    QColor Color() const;
    void ReadMotion(AuthorOptions* options) const;
    void ReadBackground(AuthorOptions* options) const;
    QString FileForScene(const char* option) const;
    int Number(const char* option, int least, int most) const;
    QPoint Pair(const char* option, const char* pattern, const char* example) const;
    QSize Size(const char* option) const;

    bool IsSet(const char* option) const { return line.IsSet(QLatin1String(option)); }
    QString Value(const char* option) const { return line.Value(QLatin1String(option)); }

    CommandLine line;
};

} // namespace AnimText

#endif
