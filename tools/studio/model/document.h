/**
 * @file
 * The open sign with its undo history, its file and its layouts.
 */
#pragma once

#include "studio/model/sign.h"

#include <QCache>
#include <QFileSystemWatcher>
#include <QObject>
#include <QThreadPool>
#include <QUndoStack>

namespace AnimText::studio::model {

/** Opening and changing a sign return at once; laying out and saving run in threads. */
class Document : public QObject
{
    Q_OBJECT

public:
    Document();

    const Sign& Current() const { return sign; }
    QUndoStack* Undo() { return &undo; }
    /** The file that the sign was read from or saved to; empty for a new sign. */
    QString Path() const { return path; }
    /** The file's name, or a title for a new sign. */
    QString Name() const;
    bool IsModified() const { return !undo.isClean(); }
    /** From Save() until SaveEnded(). */
    bool IsSaving() const { return saving || !savePath.isEmpty(); }

    /**
     * Replaces the sign with @p after, as a step that can be undone. Consecutive steps with the
     * same
     * @p merge become one; an empty @p merge never does.
     */
    void Change(const QString& what, Sign after, const QString& merge = QString());

    /** Starts a sign with one text and no file. */
    void New(const QSize& display = Sign().display, bool alphaBlend = true);
    /** @return false, with one line in @p error, if the scene cannot be read */
    bool Open(const QString& path, QString* error);
    /** Opens a recovered sign; @p path is the file that it belongs to. */
    void Recover(const Sign& sign, const QString& path);

    /** Saves when the layouts are ready, and then emits SaveEnded(). */
    void Save(const QString& path);
    /** Loads the file's present content as a step that can be undone. */
    bool LoadTheirs(QString* error);
    /** Lets the next save overwrite what somebody else has written to the file. */
    void KeepMine();

signals:
    /** Another sign was opened. */
    void Replaced();
    /** The sign has changed, was replaced, or now has all its layouts. */
    void Changed();
    /** An undone or redone step has changed the text @p id or, for 0, the display. */
    void Revisited(int id);
    /** The path, the name or IsModified() has changed. */
    void StateChanged();
    void SaveEnded(bool saved, const QString& error);
    /** Somebody else has changed the file since it was read or saved. */
    void DiskChanged();

private:
    friend class SignChange;

    void Set(const Sign& next);
    void Revisit(const Sign& other);
    void Replace(const Sign& next, const QString& itsPath);
    void LayOut();
    void Remember(const std::shared_ptr<const Layout>& layout);
    void Take(const std::shared_ptr<const Layout>& layout);
    void SaveNow();
    void Know(const QString& known, const QByteArray& digest);
    void LookAtDisk();

    Sign sign;
    QUndoStack undo;
    QCache<QByteArray, std::shared_ptr<const Layout>> layouts; // by key; cost in bytes
    QByteArray pending;                                        // key of the layout being made
    QString path;
    QString savePath; // target of a save that waits for layouts; empty for none
    bool saving = false;
    int revision = 0;    // counts changes
    int opened = 0;      // revision of the sign when it was opened
    QByteArray onDisk;   // digest of the file as last read or saved
    QByteArray reported; // digest that DiskChanged() was last emitted for
    QFileSystemWatcher watcher;
    // They are destroyed first, and wait for what is running.
    QThreadPool saver;
    QThreadPool maker; // of layouts
};

/**
 * Writes @p sign with its data files and sources to @p path, completely or not at all.
 * @param known digest that the present file must have, otherwise this fails and keeps the file;
 *        empty to overwrite any file
 */
bool SaveSign(const Sign& sign, const QString& path, const QByteArray& known, QString* error);

} // namespace AnimText::studio::model
