/**
 * @file
 * The scene file: what a display shows, as one JSON file beside its data files.
 */
#pragma once

#include "scene/place.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMap>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QVariant>

namespace AnimText::scene {

/** One animated text and where it plays. */
struct SceneNode
{
    QString type = "LW_animationText_Plugin";
    QPoint pos;                         ///< pixels
    QSize size;                         ///< pixels
    int hold = 0;                       ///< units of 100 ms
    int neonEffect = 0;                 ///< the neon style
    QMap<QString, QVariant> attributes; ///< ints and strings
    QMap<QString, QList<QHash<QString, QString>>> lists;
    QMap<QString, QString> files; ///< as written in the scene file: relative to it, or absolute
};

struct SceneArea
{
    QList<SceneNode> nodes;
};

struct ScenePage
{
    QList<SceneArea> areas;
};

/** A program of pages, each of areas, each of nodes. */
struct Scene
{
    QString path;  ///< the file that it was read from, or that it is for
    QSize display; ///< pixels
    bool alphaBlend = true;
    QList<ScenePage> pages;

    /** The places of all nodes, in the order of the file. */
    QList<Place> Places() const;
    /** The node at @p place, which must be one of Places(). */
    SceneNode& At(const Place& place);
    const SceneNode& At(const Place& place) const;
    /** Every node, in the order of the file. */
    QList<SceneNode*> Nodes();
    QList<const SceneNode*> Nodes() const;
    /**
     * The place that @p word names: its number in Places(), counted from 1, or its path, whatever
     * follows. Returns false when there is none, and then @p error has one line on it.
     */
    bool Find(const QString& word, Place* place, QString* error) const;
    /** Takes the node out, and with it an area and a page that are empty then. */
    void Remove(const Place& place);
    /** @p file as a full path, relative names being relative to the folder of the scene's file,
        also where its path is a symbolic link to it. */
    QString FullName(const QString& file) const;
};

/** One thing that is wrong in the structure of a scene file. */
struct SceneFault
{
    QString place;    ///< JSON path; line and column of a syntax error; empty for the whole file
    QString expected; ///< what should be there
    QString found;    ///< what is there
    int others = 0;   ///< rows of the same list in which the same is wrong

    /** One line for people, with the file @p path at its beginning. */
    QString Line(const QString& path) const;
};

/** " and 2 more like it", or nothing for 0. */
QString AndMore(int others);

/** "1 row", "2 rows". */
QString Counted(int count, const QString& noun);

/** Whether a missing file that a scene names is an error. */
enum class MissingFiles { AreErrors, AreAccepted };

/**
 * Reads @p path, or standard input for "-", whose data files are in the current folder. If anything
 * is wrong, returns false with one line on the first fault in @p error and leaves @p scene as it
 * was.
 * @param all gets every fault, in the order of reading; may be null
 */
bool ReadScene(const QString& path, Scene* scene, QString* error,
               MissingFiles missing = MissingFiles::AreErrors, QList<SceneFault>* all = nullptr);
/** The same for @p text, which is or will be what the file @p path holds. */
bool ReadSceneText(const QByteArray& text, const QString& path, Scene* scene, QString* error,
                   MissingFiles missing);

/** The scene as the text of a scene file. */
QByteArray SceneToJson(const Scene& scene);

} // namespace AnimText::scene
