/**
 * @file
 * A scene's play as a row of pictures, one for each tick.
 */
#pragma once

#include "timing/playlength.h"

#include <QColor>
#include <QImage>

#include <functional>

namespace AnimText::film {

/** How to make a film from a play. */
struct FilmSettings
{
    double seconds = 0;            ///< how much to play; 0: to the end
    int scale = 1;                 ///< each pixel becomes a square of that many
    double pitch = 0;              ///< round LEDs, see AsLamps(); 0 for square pixels
    QColor background = Qt::black; ///< under the display; invalid: none
    bool schedule = false;         ///< as the host plays it, by planned times
    bool restAtEnd = true;         ///< holds the last pages once more
    bool evenSize = false;         ///< adds a column or row where a side is odd
    uint seed = player::standardSeed;
};

/** The stages of making a film. */
enum class FilmStage { End, Colors, Pictures };

/** Receives a picture and its number. */
using TakePicture = std::function<void(int frame, const QImage& picture)>;

/** Receives the progress and, if known, the total; throws to stop. */
using FilmWatch = std::function<void(FilmStage stage, qint64 done, qint64 total)>;

/**
 * To the end means: until every node is finished and its last page was held once more; a text that
 * the device scrolls, once through its area; a still text, for its planned time. With the host's
 * schedule it is one showing.
 */
class Film
{
public:
    /**
     * Finds the length by playing the scene, unless it is given. Throws Failure when the scene
     * cannot be played or does not end within an hour.
     * @param watch called for as long as that takes
     */
    Film(player::Player* player, const scene::Scene& scene, const FilmSettings& settings,
         const FilmWatch& watch = FilmWatch());

    int FrameCount() const { return frameCount; }
    /** Of the pictures, in pixels. */
    QSize FrameSize() const;
    /** Whether the pictures are transparent where there is no text. */
    bool IsTransparent() const { return !settings.background.isValid(); }

    /**
     * Plays and passes the pictures @p wanted, in rising order, to @p take: in
     * QImage::Format_ARGB32, or in Format_RGB32 where there is a background. Throws Failure when
     * the scene cannot be played.
     */
    void Play(const QVector<int>& wanted, const TakePicture& take);

private:
    int FindEnd(const FilmWatch& watch);
    QImage OnBackground(const QImage& shown, QSize part, QSize size) const;
    QImage Picture() const;
    void Rest();

    player::Player* player;
    scene::Scene scene;
    FilmSettings settings;
    player::Schedule schedule;
    int frameCount = 0;
    int restTick = -1; // from here on, finished texts are frozen; negative: never
};

} // namespace AnimText::film
