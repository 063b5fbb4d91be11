#include "studio/model/document.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QUndoCommand>

#include <algorithm>
#include <utility>

namespace AnimText::studio::model {
namespace {

constexpr int rememberedBytes = 64 << 20; // of layouts

/** A digest of the file's content; empty if there is no file. */
QByteArray DigestOfFile(const QString& path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        return {};
    return hash.result();
}

bool IsSameDisplay(const Sign& a, const Sign& b)
{
    return a.display == b.display && a.alphaBlend == b.alphaBlend;
}

} // namespace

/** One undo step; both states share their unchanged data. */
class SignChange : public QUndoCommand
{
public:
    SignChange(Document* document, const QString& what, Sign after, const QString& merge)
        : QUndoCommand(what)
        , document(document)
        , before(document->Current())
        , after(std::move(after))
        , merge(merge)
    {
    }

    int id() const override { return merge.isEmpty() ? -1 : 1; }
    void undo() override { document->Revisit(before); }
    void redo() override
    {
        if (std::exchange(isDone, true))
            document->Revisit(after);
        else
            document->Set(after);
    }
    bool mergeWith(const QUndoCommand* later) override
    {
        const auto* other = static_cast<const SignChange*>(later);
        if (other->merge != merge)
            return false;
        after = other->after;
        // A drag that has ended where it began is no step.
        setObsolete(IsSameDisplay(after, before) && after.texts == before.texts);
        return true;
    }

private:
    Document* document;
    Sign before;
    Sign after;
    QString merge;
    bool isDone = false;
};

bool SaveSign(const Sign& sign, const QString& path, const QByteArray& known, QString* error)
{
    const auto change = [&](scene::Scene* scene, author::DataFiles* dataFiles, QString* why) {
        if (!known.isEmpty() && QFileInfo::exists(path) && DigestOfFile(path) != known) {
            *why = Document::tr("%1 has changed on disk").arg(path);
            return false;
        }
        // The old scene's sources are kept until the new scene has replaced it.
        author::TextSources sources = author::ReadSources(path);
        author::TextSources wanted;
        for (const scene::SceneNode* node : scene->Nodes()) {
            const QByteArray digest = author::LayoutDigest(*node);
            if (sources.contains(digest))
                wanted.insert(digest, sources.value(digest));
        }
        *scene = SceneToSave(sign, scene->path, dataFiles, wanted);
        return true;
    };
    return author::ChangeScene(path, change, error) == author::Storing::Saved;
}

Document::Document()
    : layouts(rememberedBytes)
{
    connect(&undo, &QUndoStack::cleanChanged, this, &Document::StateChanged);
    connect(&watcher, &QFileSystemWatcher::fileChanged, this, &Document::LookAtDisk);
    connect(&watcher, &QFileSystemWatcher::directoryChanged, this, &Document::LookAtDisk);
    saver.setMaxThreadCount(1);
    // One permanent thread: each new thread would load the fonts again.
    maker.setMaxThreadCount(1);
    maker.setExpiryTimeout(-1);
}

QString Document::Name() const
{
    return path.isEmpty() ? tr("New scene") : QFileInfo(path).fileName();
}

void Document::Change(const QString& what, Sign after, const QString& merge)
{
    for (SignText& text : after.texts) {
        const SignText* old = sign.Find(text.id);
        if (!old || !(*old == text))
            text.layoutKey = LayoutKey(text);
        if (old && !text.layout)
            layouts.remove(text.layoutKey); // it was reset because its files are damaged
    }
    undo.push(new SignChange(this, what, std::move(after), merge));
}

void Document::Set(const Sign& next)
{
    sign = next;
    ++revision;
    LayOut();
    emit Changed();
}

/** Changes to a state of the history, and says what differs there. */
void Document::Revisit(const Sign& other)
{
    const bool isOfDisplay = !IsSameDisplay(other, sign);
    const auto text =
        std::find_if(other.texts.begin(), other.texts.end(), [this](const SignText& text) {
            const SignText* now = sign.Find(text.id);
            return !now || !(*now == text);
        });
    Set(other);
    if (isOfDisplay || text != other.texts.end())
        emit Revisited(isOfDisplay ? 0 : text->id);
}

void Document::Replace(const Sign& next, const QString& itsPath)
{
    undo.clear();
    opened = ++revision;
    savePath.clear();
    Know(itsPath, DigestOfFile(itsPath));
    for (const SignText& text : next.texts) {
        if (text.layout)
            Remember(text.layout);
    }
    sign = next;
    LayOut();
    emit Replaced();
    emit StateChanged();
    emit Changed();
}

void Document::New(const QSize& display, bool alphaBlend)
{
    Sign fresh;
    fresh.display = display;
    fresh.alphaBlend = alphaBlend;
    AddText(&fresh, NewText(fresh.display, 0));
    Replace(fresh, QString());
}

bool Document::Open(const QString& file, QString* error)
{
    Sign read;
    if (!ReadSign(file, &read, error))
        return false;
    Replace(read, QFileInfo(file).absoluteFilePath());
    return true;
}

void Document::Recover(const Sign& recovered, const QString& file)
{
    Replace(recovered, file);
    undo.resetClean();
}

/** Takes the layouts that are known, and begins with the first of the others. */
void Document::LayOut()
{
    for (SignText& text : sign.texts) {
        if (text.IsLaidOut())
            continue;
        if (const auto* known = layouts.object(text.layoutKey)) {
            text.layout = *known;
        } else if (pending.isEmpty()) {
            pending = text.layoutKey;
            maker.start([this, text] {
                const auto layout = MakeLayout(text);
                QMetaObject::invokeMethod(
                    this, [this, layout] { Take(layout); }, Qt::QueuedConnection);
            });
        }
    }
}

void Document::Remember(const std::shared_ptr<const Layout>& layout)
{
    layouts.insert(layout->key, new std::shared_ptr<const Layout>(layout),
                   layout->data.value("PathData").size() + layout->text.size() * 200 + 1000);
}

void Document::Take(const std::shared_ptr<const Layout>& layout)
{
    pending.clear();
    Remember(layout);
    const bool wasLaidOut = sign.IsLaidOut();
    for (SignText& text : sign.texts) {
        if (text.layoutKey == layout->key)
            text.layout = layout;
    }
    LayOut();
    if (!sign.IsLaidOut())
        return;
    if (!wasLaidOut)
        emit Changed();
    if (!savePath.isEmpty())
        SaveNow();
}

void Document::Save(const QString& file)
{
    savePath = file;
    if (sign.IsLaidOut())
        SaveNow();
}

void Document::SaveNow()
{
    const QString file = std::exchange(savePath, {});
    // The file dialog has already asked before overwriting another file.
    const QByteArray known = QFileInfo(file) == QFileInfo(path) ? onDisk : QByteArray();
    saving = true;
    emit StateChanged();
    saver.start([this, saved = sign, file, known, state = revision] {
        QString error;
        const bool done = SaveSign(saved, file, known, &error);
        const QByteArray digest = done ? DigestOfFile(file) : QByteArray();
        const auto end = [this, done, error, digest, state, file] {
            saving = false;
            if (done && state >= opened) { // otherwise another sign has been opened
                Know(QFileInfo(file).absoluteFilePath(), digest);
                // Changes made during the save are not in the file.
                if (revision == state)
                    undo.setClean();
            }
            emit StateChanged();
            emit SaveEnded(done, error);
            LookAtDisk();
        };
        QMetaObject::invokeMethod(this, end, Qt::QueuedConnection);
    });
}

bool Document::LoadTheirs(QString* error)
{
    Sign theirs;
    if (!ReadSign(path, &theirs, error))
        return false;
    Know(path, DigestOfFile(path));
    undo.push(new SignChange(this, tr("Load from disk"), theirs, QString()));
    undo.setClean();
    return true;
}

void Document::KeepMine()
{
    Know(path, DigestOfFile(path));
    undo.resetClean();
}

/** Watches the file @p known, whose content has that @p digest. */
void Document::Know(const QString& known, const QByteArray& digest)
{
    path = known;
    onDisk = reported = digest;
    const QStringList before = watcher.files() + watcher.directories();
    if (!before.isEmpty())
        watcher.removePaths(before);
    // The watcher loses a file that is replaced, so the folder is watched, too.
    if (!path.isEmpty())
        watcher.addPaths({path, QFileInfo(path).absolutePath()});
}

void Document::LookAtDisk()
{
    if (path.isEmpty() || saving)
        return;
    const QByteArray digest = DigestOfFile(path);
    if (!watcher.files().contains(path))
        watcher.addPath(path);
    if (digest.isEmpty() || digest == reported)
        return;
    reported = digest;
    emit DiskChanged();
}

} // namespace AnimText::studio::model
