/**
 * @file
 * Keeps a copy of unsaved work, so that a studio that is killed loses nothing.
 */
#pragma once

#include "studio/model/document.h"

#include <QDateTime>
#include <QLockFile>
#include <QThreadPool>
#include <QTimer>

namespace AnimText::studio::model {

/** Unsaved work of a studio that has ended. */
struct LostWork
{
    QString folder; ///< folder of the copy
    QString path;   ///< the file that it belongs to; empty for a new sign
    QDateTime when;
    Sign sign;
};

/**
 * Writes a copy of a changed document to its own folder, half a second after each change. Removes
 * the copy when the changes are saved or given up.
 */
class Recovery : public QObject
{
    Q_OBJECT

public:
    /** @param folder parent of the copies' folders; empty for the user's default */
    explicit Recovery(Document* document, const QString& folder = QString());
    /** Removes the copy: the user has decided not to save. */
    ~Recovery() override;

    /** The copies of studios that no longer run, latest first. */
    QList<LostWork> Find() const;
    /** Opens it in the document; keeps it until the document has a copy of its own. */
    void TakeOver(const LostWork& work);
    /** Deletes the copy. */
    static void Drop(const LostWork& work);

signals:
    /** The copy has been written. */
    void Kept();

private:
    void Look();
    void Keep();

    Document* document;
    QString root;
    QString folder;
    QString taken;  // folder of the restored copy until there is a new one
    QLockFile lock; // while this studio runs
    QTimer delay;
    QThreadPool pool;
};

} // namespace AnimText::studio::model
