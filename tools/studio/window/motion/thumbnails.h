/**
 * @file
 * Small moving pictures of every motion and neon style with the user's own text. A worker paints
 * them on demand.
 */
#pragma once

#include "studio/model/sign.h"
#include "studio/worker/scenefolder.h"
#include "studio/worker/workerlink.h"

#include <QAbstractItemView>
#include <QHash>
#include <QThreadPool>
#include <QTimer>
#include <QVector>

namespace AnimText::studio::window::motion {

constexpr QSize thumbnailSize{160, 40}; ///< pixels
constexpr int neonThumbnails = 1000;
constexpr int currentRole = Qt::UserRole + 1; ///< whether a row's icon shows the present text

/** The motion of a row of all effects, followed by the scrolls. */
scene::NodeMotion MotionOfRow(int row);

/** @p picture as the icon of a row, on black. */
QIcon LitIcon(const QImage& picture, double opacity = 1);

class Thumbnails : public QObject
{
    Q_OBJECT

public:
    /** @param plugin the plugin library; empty for the one beside the program */
    explicit Thumbnails(const QString& plugin, QObject* parent = nullptr);

    /** Sets the text of all pictures; old pictures remain until new ones are ready. */
    void SetText(const model::SignText& text);
    /**
     * Moves the pictures of the first @p count rows of @p view while they are in sight; the others
     * cost nothing.
     * @param motion of the first row; an effect's number; a scroll's, after the effects; or
     * neonThumbnails and a neon background's border style, 1 to 28
     */
    void Animate(QAbstractItemView* view, int motion, int count);

private:
    struct Loop
    {
        QVector<QImage> pictures;
        int text = 0;  ///< number of the text that they show
        int asked = 0; ///< number of the text that they were requested for
    };

    QImage Picture(int motion);
    void Next();
    void TakeAnswer(const worker::Answer& answer);
    void Finish();

    worker::WorkerLink link;
    worker::SceneFolder folder;
    QTimer beat;
    int tick = 0;
    QHash<int, Loop> loops; // by motion
    QList<int> waiting;
    model::SignText text;
    int textNumber = 0;
    int current = -1; // the loop being painted; negative for none
    int currentText = 0;
    quint32 generation = 0;
    QVector<QImage> made;
    std::shared_ptr<const model::Layout> playing; // keeps the layout's files
    QThreadPool pool; // destroyed first, when it waits for what is running
};

} // namespace AnimText::studio::window::motion
