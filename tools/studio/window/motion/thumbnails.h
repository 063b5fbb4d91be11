/**
 * @file
 * Small moving pictures of every motion and neon style with the user's own text. A worker paints
 * them on demand.
 */
#pragma once

#include "studio/model/sign.h"
#include "studio/worker/scenefolder.h"
#include "studio/worker/workerlink.h"

#include <QHash>
#include <QThreadPool>
#include <QVector>

namespace AnimText::studio::window::motion {

constexpr QSize thumbnailSize{160, 40}; ///< pixels
constexpr int neonThumbnails = 1000;

class Thumbnails : public QObject
{
    Q_OBJECT

public:
    /** @param plugin the plugin library; empty for the one beside the program */
    explicit Thumbnails(const QString& plugin, QObject* parent = nullptr);
    ~Thumbnails() override;

    /** Sets the text of all pictures; old pictures remain until new ones are ready. */
    void SetText(const model::SignText& text);
    /**
     * The picture of @p motion at @p tick of its loop; null until the worker has painted it.
     * @param motion an effect's number; a scroll's, after the effects; or neonThumbnails and a
     * neon background's border style, 1 to 28
     */
    QImage Picture(int motion, int tick);
    /** Whether Picture() shows the present text. */
    bool IsCurrent(int motion) const { return loops.value(motion).text == textNumber; }

private:
    struct Loop
    {
        QVector<QImage> pictures;
        int text = 0;  ///< number of the text that they show
        int asked = 0; ///< number of the text that they were requested for
    };

    void Next();
    void TakeAnswer(const worker::Answer& answer);
    void Finish();

    worker::WorkerLink link;
    worker::SceneFolder folder;
    QThreadPool pool;
    QHash<int, Loop> loops; // by motion
    QList<int> waiting;
    model::SignText text;
    int textNumber = 0;
    int current = -1; // the loop being painted; negative for none
    int currentText = 0;
    quint32 generation = 0;
    QVector<QImage> made;
    std::shared_ptr<const model::Layout> playing; // keeps the layout's files
};

} // namespace AnimText::studio::window::motion
