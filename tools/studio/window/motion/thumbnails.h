/**
 * @file
 * Small moving pictures of every motion and neon style with the user's own text, made by a worker
 * as they are looked at.
 */
#ifndef ANIMTEXT_THUMBNAILS_H
#define ANIMTEXT_THUMBNAILS_H

#include "studio/model/sign.h"
#include "studio/worker/scenefolder.h"
#include "studio/worker/workerlink.h"

#include <QHash>
#include <QThread>
#include <QThreadPool>
#include <QVector>

namespace AnimText {

constexpr QSize thumbnailSize{160, 40}; ///< pixels

class Thumbnails : public QObject
{
    Q_OBJECT

public:
    /** @param plugin the library to be played with; empty for the one beside the program */
    explicit Thumbnails(const QString& plugin, QObject* parent = nullptr);
    ~Thumbnails() override;

    /** The text that all of them show; the old pictures stay until there are new ones. */
    void SetText(const SignText& text);
    /** The picture of a motion at @p tick of its loop; null while there is none. Asks for it. */
    QImage Picture(bool scroll, int number, int tick);
    /** Whether that is a picture of the text as it is now. */
    bool IsCurrent(bool scroll, int number) const;
    /** As Picture(), of a neon background with the border @p style, 1 .. 28. */
    QImage NeonPicture(int style, int tick);
    /** How many motions and styles have been asked for. */
    int Asked() const { return asked; }

private:
    struct Loop
    {
        QVector<QImage> pictures;
        int text = 0; ///< which text they are of
        bool isAsked = false;
    };

    QImage PictureOf(int key, int tick);
    void Ask(int key);
    void Next();
    void TakePicture(const TickPicture& picture);
    void Finish();

    QThread thread;
    WorkerLink* link;
    SceneFolder folder;
    QThreadPool pool;
    QHash<int, Loop> loops; // by number; scrolls from 1000 on, neon styles from 2000 on
    QList<int> waiting;
    SignText text;
    int textNumber = 0;
    int current = -1; // what is being made
    int currentText = 0;
    quint32 generation = 0;
    QVector<QImage> made;
    std::shared_ptr<const Layout> playing; // its files stay as long as it does
    int asked = 0;
};

} // namespace AnimText

#endif
