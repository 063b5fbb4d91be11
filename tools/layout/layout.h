/**
 * @file
 * Lays out a text for the sign.
 */
#pragma once

#include "layout/setting.h"
#include "layout/styledtext.h"
#include "scene/motion.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMap>
#include <QSize>
#include <QString>
#include <QStringList>

namespace AnimText::layout {

/** A character without an outline. */
struct UnseenCharacter
{
    int index = 0;        ///< its first UTF-16 unit
    uint codePoint = 0;   ///< 0x0 .. 0x10FFFF
    bool missing = false; ///< no font has it; otherwise its font has only a picture
};

/** A text as the sign will have it, and what to warn of. */
struct LaidOut
{
    StyledText styled; ///< in the sizes that fit
    QString text;      ///< with spaces added as margins
    /** The lists of a scene, with a row for each UTF-16 unit of @c text. */
    QMap<QString, QList<QHash<QString, QString>>> lists;
    QMap<QString, QByteArray> data; ///< content of the files "PathData" and "DescentVector"
    QSize area;                     ///< pixels
    QSize size;                     ///< of the line, pixels
    int pages = 1;                  ///< into which the sign divides the text
    QList<UnseenCharacter> unseen;
    QStringList tornWords; ///< words that are wider than a page
    int cutAbove = 0;      ///< pixels of letters at rest outside the area
    int cutBelow = 0;
};

/**
 * Lays out @p text in @p area, pixels, or without one in an area that fits the text. Needs a
 * QGuiApplication.
 * @return false, with one line in @p error, if a sign cannot show it
 */
bool LayOut(const StyledText& text, const Setting& setting, const scene::NodeMotion& motion,
            const QSize& area, LaidOut* laid, QString* error);

} // namespace AnimText::layout
