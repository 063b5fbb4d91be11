/**
 * @file
 * Real texts to play: laid out by the author library, in every motion and before every background.
 */
#pragma once

#include "scene/catalog.h"
#include "scene/scene.h"

#include <QSize>
#include <QString>
#include <QTemporaryDir>

/** The entrance effects by number and, after them, the scrolls left, right, up and down. */
inline const int firstScroll = AnimText::scene::Effects().size();
inline const int motionCount = firstScroll + AnimText::scene::Scrolls().size();
constexpr int trembleEffect = 8; // the one motion with random numbers

/** Bits. */
enum Background { NoBackground = 0, WithNeon = 1, WithDazzle = 2, BackgroundCount = 4 };

/** For the rows of a test, e.g. "11 RotationEffect, neon". */
QByteArray RowName(int motion, int background);

/** Sets the attributes that choose the motion, and its speed. */
void SetMotion(AnimText::scene::SceneNode* node, int motion, int speed);
void SetBackground(AnimText::scene::SceneNode* node, int background);

/** A text with its data files, which last as long as the sample. */
class Sample
{
public:
    /** @param area in pixels; the letters are as high as fits */
    Sample(const QString& text, QSize area);

    AnimText::scene::SceneNode Node(int motion, int background, int speed) const;
    QString File(const QString& name) const { return folder.filePath(name); }

private:
    QTemporaryDir folder;
    AnimText::scene::SceneNode base;
};
