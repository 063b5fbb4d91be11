/**
 * @file
 * What the gallery's page shows without its script: a card for each motion, and the table of times.
 */
#pragma once

#include "gallery/motionplay.h"
#include "scene/catalog.h"

#include <QByteArray>
#include <QSize>

namespace AnimText::gallery {

constexpr int speedCount = 10;

/** A motion at all speeds. */
struct GalleryEntry
{
    const scene::Motion* motion;
    QString option; ///< with which `animtext author` chooses it
    MotionPlay plays[speedCount];
    int poster = 0; ///< which picture of posters.png, counted from its top
};

/** "planned 5.20 s · actual 5.35 s · …": what the host shows of @p play. */
QString TimesInWords(const MotionPlay& play);

/**
 * @param page index.html, with places for what it shows
 * @param text what all motions show
 * @param size of their pictures, in pixels
 */
QByteArray FillPage(const QByteArray& page, const QString& text, const QSize& size,
                    const QVector<GalleryEntry>& entries);

} // namespace AnimText::gallery
