#include "studio/model/document.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUndoCommand>

namespace AnimText::studio::model {
namespace {

constexpr int tellingDelay = 50; // milliseconds from a layout to Changed()

/** A digest of the file's content; empty if there is no file. */
QByteArray DigestOfFile(const QString& path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        return {};
    return hash.result();
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
    void undo() override { document->Set(before); }
    void redo() override { document->Set(after); }
    bool mergeWith(const QUndoCommand* later) override
    {
        const auto* other = static_cast<const SignChange*>(later);
        if (other->merge != merge)
            return false;
        after = other->after;
        return true;
    }

private:
    Document* document;
    Sign before;
    Sign after;
    QString merge;
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
        *scene = SceneToSave(sign, scene->path, dataFiles);
        const author::TextSources own = SourcesOf(sign, *scene);
        for (auto source = own.begin(); source != own.end(); ++source)
            wanted.insert(source.key(), source.value());
        dataFiles->insert(author::SourcesName(scene->path), author::SourcesToJson(wanted));
        return true;
    };
    return author::ChangeScene(path, change, error) == author::Storing::Saved;
}

Document::Document()
{
    connect(&layouts, &LayoutQueue::Made, this, &Document::TakeLayout);
    connect(&undo, &QUndoStack::cleanChanged, this, &Document::StateChanged);
    connect(&watcher, &QFileSystemWatcher::fileChanged, this, &Document::LookAtDisk);
    connect(&watcher, &QFileSystemWatcher::directoryChanged, this, &Document::LookAtDisk);
    telling.setSingleShot(true);
    telling.setInterval(tellingDelay);
    connect(&telling, &QTimer::timeout, this, &Document::Changed);
    pool.setMaxThreadCount(1);
}

Document::~Document()
{
    pool.waitForDone();
}

QString Document::Name() const
{
    return path.isEmpty() ? tr("New scene") : QFileInfo(path).fileName();
}

void Document::Change(const QString& what, Sign after, const QString& merge)
{
    for (SignText& text : after.texts) {
        const SignText* old = sign.Find(text.id);
        const bool same =
            old && old->source == text.source && old->node.size == text.node.size &&
            scene::MotionOf(old->node).IsScroll() == scene::MotionOf(text.node).IsScroll() &&
            scene::MotionOf(old->node).number == scene::MotionOf(text.node).number;
        if (!same)
            text.layoutKey = LayoutKey(text);
        if (old && !text.layout)
            layouts.Forget(text); // it was reset because its files are damaged
    }
    undo.push(new SignChange(this, what, std::move(after), merge));
}

void Document::Set(const Sign& next)
{
    sign = next;
    ++revision;
    AskForLayouts();
    emit Changed();
}

void Document::Replace(const Sign& next, const QString& itsPath)
{
    undo.clear();
    opened = ++revision;
    savePath.clear();
    Know(itsPath, DigestOfFile(itsPath));
    for (const SignText& text : next.texts) {
        if (text.layout)
            layouts.Remember(text.layout);
    }
    sign = next;
    AskForLayouts();
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

void Document::AskForLayouts()
{
    for (SignText& text : sign.texts) {
        if (text.IsLaidOut())
            continue;
        if (const auto known = layouts.Ask(text))
            text.layout = known;
    }
}

void Document::TakeLayout(const std::shared_ptr<const Layout>& layout)
{
    bool taken = false;
    for (SignText& text : sign.texts) {
        if (text.layoutKey != layout->key || text.IsLaidOut())
            continue;
        text.layout = layout;
        taken = true;
    }
    // Several layouts in a row cause one Changed().
    if (taken && sign.IsLaidOut()) {
        telling.stop();
        emit Changed();
    } else if (taken && !telling.isActive()) {
        telling.start();
    }
    if (!savePath.isEmpty() && sign.IsLaidOut())
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
    const QString file = savePath;
    savePath.clear();
    const Sign saved = sign;
    const int state = revision;
    // The file dialog has already asked before overwriting another file.
    const QByteArray known = QFileInfo(file) == QFileInfo(path) ? onDisk : QByteArray();
    saving = true;
    emit StateChanged();
    pool.start([this, saved, file, known, state] {
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
