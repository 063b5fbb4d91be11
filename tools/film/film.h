/**
 * @file
 * A scene's play as a row of pictures, one for each tick.
 */
#ifndef ANIMTEXT_FILM_H
#define ANIMTEXT_FILM_H

#include "timing/playlength.h"

#include <QColor>
#include <QImage>

#include <functional>

namespace AnimText {

/** How a film is made of a play. */
struct FilmSettings
{
    double seconds = 0;            ///< how much to play; 0: to the end
    int scale = 1;                 ///< each pixel becomes a square of that many
    double pitch = 0;              ///< round LEDs, see AsLamps(); 0 for square pixels
    QColor background = Qt::black; ///< under the display; invalid: none
    bool schedule = false;         ///< as the host plays it, by the times that it is told
    bool restAtEnd = true;         ///< lets the last pages stand for one hold more
    bool evenSize = false;         ///< adds a column or row where a side is odd
    uint seed = standardSeed;
};

/** What is being done for a film. */
enum class FilmStage { End, Colors, Pictures };

/** Learns how much is done and, where that is known, of how much; returns false to stop. */
using FilmWatch = std::function<bool(FilmStage stage, qint64 done, qint64 total)>;

/**
 * To the end means: until every node has reported itself finished, and then the pages that stand
 * there for one hold more; a text that the device scrolls, once through its area; a text that
 * stands still, for as long as the host gives it. By the host's schedule it is one showing.
 */
class Film
{
public:
    Film(Player* player, const Scene& scene, const FilmSettings& settings);

    /**
     * Finds the length by playing the scene, unless it is given.
     * @return false, with one line in @p error, when the scene cannot be played, does not end
     *         within an hour, or @p watch stops it
     */
    bool Plan(const FilmWatch& watch, QString* error);

    /** Known once planned. */
    int FrameCount() const { return frameCount; }
    /** Of the pictures, in pixels. */
    QSize FrameSize() const;
    /** Whether the pictures let through what lies behind them. */
    bool IsTransparent() const { return !settings.background.isValid(); }

    /**
     * Plays and gives the pictures @p wanted, which are in rising order, to @p take: in
     * QImage::Format_ARGB32, or in Format_RGB32 where there is a background. Stops when it answers
     * false.
     */
    bool Play(const QVector<int>& wanted, const std::function<bool(int frame, const QImage&)>& take,
              QString* error);

private:
    bool FindEnd(const FilmWatch& watch, QString* error);
    int PlannedFrames(const QVector<NodePlay>& plays);
    QImage OnBackground(const QImage& shown, QSize part, QSize size) const;
    QImage Picture() const;
    void Rest();

    Player* player;
    Scene scene;
    FilmSettings settings;
    Schedule schedule;
    int frameCount = 0;
    int restTick = -1;         // from here on, what has played stands still; negative: never
    QVector<bool> comesToRest; // by node
};

} // namespace AnimText

#endif
