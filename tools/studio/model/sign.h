/**
 * @file
 * The studio's model: the texts of a sign with their styles and settings.
 */
#pragma once

#include "author/textsource.h"
#include "scene/scene.h"

#include <QList>
#include <QSize>

#include <functional>
#include <memory>

namespace AnimText::studio::model {

/** The result of laying out one text; shared and immutable. */
struct Layout : layout::LaidOut
{
    QMap<QString, QString> files; ///< of the data, those that exist already, full names
    QStringList notes;            ///< styles that no sign can show
    QString fault;                ///< why the layout failed; empty on success
    QByteArray key;               ///< LayoutKey() of what it was made from
};

/** One text of a sign. */
struct SignText
{
    int id = 0;            ///< unique and constant
    int page = 0;          ///< from 0
    int area = 0;          ///< within its page, from 0
    scene::SceneNode node; ///< its settings, without the results of the layout
    author::TextSource source;
    std::shared_ptr<const Layout> layout; ///< null or outdated while a new one is being made
    QByteArray layoutKey;                 ///< key of the layout for the present settings

    bool IsLaidOut() const { return layout && layout->key == layoutKey; }
    /** Its name if it has one, otherwise the text on one line. */
    QString Title() const
    {
        return source.name.isEmpty() ? source.text.text.simplified() : source.name;
    }
};

/** Whether both are the same text with the same settings, on any page and however laid out. */
bool operator==(const SignText& a, const SignText& b);

/** Changes the settings of a text. */
using TextChange = std::function<void(SignText* text)>;

/** A sign with its texts, in the order of their pages and areas. */
struct Sign
{
    QSize display{512, 64}; ///< pixels
    bool alphaBlend = true;
    QList<SignText> texts;

    /** Index of the text @p id; -1 if there is none. */
    int IndexOf(int id) const;
    SignText* Find(int id);
    const SignText* Find(int id) const;
    int PageCount() const;
    bool IsLaidOut() const;
};

/** A sample text in a common font, for a new area on @p page. */
SignText NewText(const QSize& area, int page);

/** Adds @p text after the others of its page, in a new area. */
void AddText(Sign* sign, const SignText& text);
/** Removes the text, and its area and page if they become empty. */
void RemoveText(Sign* sign, int id);

/**
 * Moves the text to index @p place of @p page, into an area of its own. If @p page is PageCount(),
 * adds a page. Removes pages that become empty.
 */
void MoveText(Sign* sign, int id, int page, int place);
/** Moves a page before page @p to (numbered before the move); PageCount() is the end. */
void MovePage(Sign* sign, int page, int to);
void RemovePage(Sign* sign, int page);
/** Inserts a copy of the page after it; the copied texts get new ids. */
void DuplicatePage(Sign* sign, int page);
/** Inserts a copy of the text after it, in a free place of the display if there is one. */
int DuplicateText(Sign* sign, int id);

/** Changes the display's size; areas that filled the old display fill the new one. */
void ResizeDisplay(Sign* sign, const QSize& display);

/** A key of the settings that the layout of @p text depends on. */
QByteArray LayoutKey(const SignText& text);

/** Lays out @p text, whose key is set. Runs in any thread; needs a QGuiApplication. */
std::shared_ptr<const Layout> MakeLayout(const SignText& text);

/**
 * Reads a scene and the sources of its texts; what they lack is guessed from the scene.
 * @return false, with one line in @p error, if the scene cannot be read
 */
bool ReadSign(const QString& path, Sign* sign, QString* error);

/** Returns a file name for the data @p key of @p layout. */
using PlaceFile = std::function<QString(const Layout& layout, const QString& key)>;

/**
 * The scene of @p sign for the file @p path. Data files with unknown content keep their names.
 * @param page the only page to include; negative for all
 */
scene::Scene SceneOf(const Sign& sign, const QString& path, const PlaceFile& placeFile,
                     int page = -1);

/**
 * The scene with all its pages, and the files to write beside it: its data and its sources.
 * @param sources others to keep
 */
scene::Scene SceneToSave(const Sign& sign, const QString& path, author::DataFiles* dataFiles,
                         author::TextSources sources = {});

} // namespace AnimText::studio::model
