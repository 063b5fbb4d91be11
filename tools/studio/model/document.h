/**
 * @file
 * The sign that is open: its changes and their way back, its file, its layouts.
 */
#ifndef ANIMTEXT_DOCUMENT_H
#define ANIMTEXT_DOCUMENT_H

#include "studio/model/layoutqueue.h"
#include "studio/model/sign.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <QUndoStack>

namespace AnimText {

/** Opening and changing take no longer than a moment; layouts and saving go on in threads. */
class Document : public QObject
{
    Q_OBJECT

public:
    explicit Document(QObject* parent = nullptr);
    /** Waits until a save that is going on has ended. */
    ~Document() override;

    const Sign& Current() const { return sign; }
    QUndoStack* Undo() { return &undo; }
    /** The file that it was read from or saved to; empty for a new sign. */
    QString Path() const { return path; }
    /** The name of the file, for people. */
    QString Name() const;
    bool IsModified() const { return !undo.isClean(); }
    /** From Save() until SaveEnded(). */
    bool IsSaving() const { return saving || !savePath.isEmpty(); }

    /**
     * Makes @p after the sign, as a step that can be undone. Steps with the same @p merge that
     * follow one another are one; an empty one stands alone.
     */
    void Change(const QString& what, Sign after, const QString& merge = QString());

    /** A sign with one text, nothing written yet. */
    void New(const QSize& display = Sign().display, bool alphaBlend = true);
    /** @return false, with one line in @p error, when the scene cannot be read */
    bool Open(const QString& path, QString* error);
    /** Takes over what another studio has left; @p path is the file it is for. */
    void Recover(const Sign& sign, const QString& path);

    /** Saves once the layouts are made; SaveEnded() tells what became of it. */
    void Save(const QString& path);
    /** What the file holds by now, as a step that can be undone. */
    bool LoadTheirs(QString* error);
    /** Lets the next save go over what somebody else has written to the file meanwhile. */
    void KeepMine();

signals:
    /** The sign is another one. */
    void Replaced();
    /** Something of it has changed; also after Replaced(), and when a layout was made. */
    void Changed();
    /** Path, name, or whether there is something to save. */
    void StateChanged();
    void SaveEnded(bool saved, const QString& error);
    /** The file holds something else than what was read from it or saved to it. */
    void DiskChanged();

private:
    friend class SignChange;

    void Set(const Sign& next);
    void Replace(const Sign& next, const QString& itsPath);
    void AskForLayouts();
    void TakeLayout(const std::shared_ptr<const Layout>& layout);
    void SaveNow();
    void Saved(bool saved, const QString& error, const QByteArray& digest, int state,
               const QString& file);
    void Watch();
    void LookAtDisk();

    Sign sign;
    QUndoStack undo;
    LayoutQueue layouts;
    QString path;
    QString savePath; // where to, once the layouts are made; empty: nowhere
    bool saving = false;
    int revision = 0;  // counts changes
    int opened = 0;    // revision with which the sign began
    QByteArray onDisk; // digest of the file as it is known
    QByteArray told;   // digest of which DiskChanged() has told
    QTimer telling;    // of layouts
    QFileSystemWatcher watcher;
    QThreadPool pool;
};

/** A digest of what the file at @p path holds; empty when there is none. */
QByteArray DigestOfFile(const QString& path);

/**
 * Writes @p sign to @p path in one step, data files and sources with it.
 * @param known digest of what is there; anything else that is there is kept, and an error says so;
 *        empty to write whatever is there
 */
bool SaveSign(const Sign& sign, const QString& path, const QByteArray& known, QString* error);

} // namespace AnimText

#endif
