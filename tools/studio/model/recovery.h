/**
 * @file
 * What has not been saved, kept so that a studio that is killed loses nothing.
 */
#ifndef ANIMTEXT_RECOVERY_H
#define ANIMTEXT_RECOVERY_H

#include "studio/model/document.h"

#include <QDateTime>
#include <QLockFile>
#include <QThreadPool>
#include <QTimer>

#include <memory>

namespace AnimText {

/** Work that was found. */
struct LostWork
{
    QString folder; ///< where it is kept
    QString path;   ///< the file that it is for; empty for a new sign
    QDateTime when;
    Sign sign;
};

/**
 * Keeps a copy of a document that has changes, in a folder of its own below the folder of all
 * copies, a moment after each change; removes it when they are saved or given up.
 */
class Recovery : public QObject
{
    Q_OBJECT

public:
    /** @param folder of all copies; empty for the user's own */
    Recovery(Document* document, const QString& folder = QString(), QObject* parent = nullptr);
    /** Gives the copy up: what was not saved then was not wanted. */
    ~Recovery() override;

    /** What studios have left that are there no more; the latest first. */
    QList<LostWork> Find() const;
    /** Makes it the document's; it stays until there is a copy of the document. */
    void TakeOver(const LostWork& work);
    /** Removes it for good. */
    static void Drop(const LostWork& work);
    /** Keeps the copy when this object goes. */
    void LeaveCopy() { leaves = true; }

signals:
    /** A copy has been made. */
    void Kept();

private:
    void Look();
    void Keep();

    Document* document;
    QString root;
    QString folder;
    QString taken; // folder of what was taken over, as long as there is no other copy
    std::unique_ptr<QLockFile> lock;
    QTimer delay;
    QThreadPool pool;
    bool leaves = false;
};

} // namespace AnimText

#endif
