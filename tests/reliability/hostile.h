/**
 * @file
 * Scenes that nobody in his right mind would put on a sign.
 */
#pragma once

#include "scene/scene.h"

#include <QByteArray>
#include <QDir>
#include <QList>
#include <QVector>

/** What a scene costs: slow ones are played only once, and not for long. */
enum class Weight { Light, Slow };

struct HostileScene
{
    QByteArray name; ///< what is wrong with it
    AnimText::scene::SceneNode node;
    bool alphaBlend = true;
    QString frogs; ///< folder of the frogs' pictures; empty: none
    Weight weight = Weight::Light;
};

/** A file, named after what is wrong with it. */
struct HostileFile
{
    QByteArray name;
    QString path;
    Weight weight = Weight::Light;
};

/** Each writes its files into @p folder. */
QList<HostileFile> HostilePathFiles(const QDir& folder);
QList<HostileFile> HostileDescentFiles(const QDir& folder);
QList<HostileFile> HostilePictures(const QDir& folder);

/**
 * Every single thing that can be wrong, each in a scene of its own, and, where that is not slow,
 * once more together with two others; always the same ones.
 */
QVector<HostileScene> HostileScenes(const QDir& folder);
