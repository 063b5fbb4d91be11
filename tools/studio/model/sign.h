/**
 * @file
 * What the studio edits: the texts of a sign as their authors wrote them.
 */
#ifndef ANIMTEXT_SIGN_H
#define ANIMTEXT_SIGN_H

#include "author/textsource.h"
#include "scene/scene.h"

#include <QList>
#include <QMetaType>
#include <QSize>

#include <functional>
#include <memory>

namespace AnimText {

/** What came of laying out one text; shared, and never changed. */
struct Layout
{
    QString text; ///< with the spaces that were added as margins
    QMap<QString, QList<QHash<QString, QString>>> lists;
    QMap<QString, QString> files; ///< data files that lie somewhere already, full names
    QByteArray outlines;          ///< content of "PathData"
    QByteArray descents;          ///< content of "DescentVector"
    QList<UnseenCharacter> unseen;
    QStringList tornWords;
    QStringList notes; ///< what of the wishes no sign shows
    int pages = 1;
    int cutAbove = 0; ///< pixels
    int cutBelow = 0;
    QString fault;  ///< why there is no layout; empty when there is one
    QByteArray key; ///< LayoutKey() of what it was made from
};

/** One text of a sign. */
struct SignText
{
    int id = 0;     ///< stays the same as long as the text is there
    int page = 0;   ///< counted from 0, as areas are
    int area = 0;   ///< within its page
    SceneNode node; ///< its settings; what layout makes is not in it
    TextSource source;
    std::shared_ptr<const Layout> layout; ///< null, or of an earlier state, while it is being made
    QByteArray layoutKey;                 ///< of the layout that its settings ask for

    bool IsLaidOut() const { return layout && layout->key == layoutKey; }
    /** Its name, or the text on one line, for people. */
    QString Title() const
    {
        return source.name.isEmpty() ? source.text.text.simplified() : source.name;
    }
};

/** A sign with its texts, in the order of their pages and areas. */
struct Sign
{
    QSize display{512, 64}; ///< pixels
    bool alphaBlend = true;
    QList<SignText> texts;

    /** Where the text @p id stands; -1 when there is none. */
    int IndexOf(int id) const;
    SignText* Find(int id);
    const SignText* Find(int id) const;
    int PageCount() const;
    bool IsLaidOut() const;
};

/** A number for a text that no other has had in this process. */
int NewTextId();

/** A text for a new area of its own on @p page, in a common font. */
SignText NewText(const QSize& area, int page);

/** Puts @p text behind those of its page, in an area of its own. */
void AddText(Sign* sign, SignText text);
/** Takes the text out, and areas and pages that are empty then. */
void RemoveText(Sign* sign, int id);

/**
 * Moves the text to that place among those of @p page, in an area of its own when the page is
 * another one; PageCount() stands for a new page. A page that is empty then goes.
 */
void MoveText(Sign* sign, int id, int page, int place);
/** Moves a page before the one that is at @p to by now; PageCount() for the end. */
void MovePage(Sign* sign, int page, int to);
void RemovePage(Sign* sign, int page);
/** Puts a copy of the page behind it; its texts have new ids. */
void DuplicatePage(Sign* sign, int page);
/** Puts a copy of the text behind it, where its area covers no other as far as there is room. */
int DuplicateText(Sign* sign, int id);

/** Gives the sign another display; areas that fill the old one fill the new one. */
void ResizeDisplay(Sign* sign, const QSize& display);

/** The wishes that decide how @p text is laid out, as a key. */
QByteArray LayoutKey(const SignText& text);

/** Lays @p text out. May run in any thread; needs a QGuiApplication. */
std::shared_ptr<const Layout> MakeLayout(const SignText& text);

/** The sign in the scene @p scene, as far as the scene and @p sources tell. */
Sign SignOf(const Scene& scene, const TextSources& sources);

/** Gives the data file of @p layout, with its outlines or with its descents, a place and a name. */
using PlaceFile = std::function<QString(const Layout& layout, bool outlines)>;

/**
 * The scene of @p sign for the file @p path. Data files whose content is not known keep their
 * names.
 * @param page the only page that is wanted; negative for all
 */
Scene SceneOf(const Sign& sign, const QString& path, const PlaceFile& placeFile, int page = -1);

/** The same with all its pages, and with the data files to be written beside it. */
Scene SceneToSave(const Sign& sign, const QString& path, DataFiles* dataFiles);

/** The sources of the texts of @p scene, which was made from @p sign with all its pages. */
TextSources SourcesOf(const Sign& sign, const Scene& scene);

} // namespace AnimText

Q_DECLARE_METATYPE(std::shared_ptr<const AnimText::Layout>)

#endif
