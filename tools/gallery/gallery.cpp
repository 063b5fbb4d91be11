#include "gallery/gallery.h"

#include "files/failure.h"
#include "files/wholefile.h"
#include "files/wholefolder.h"
#include "gallery/page.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

// Resources of a static library must be initialized, outside of any namespace.
static void LoadPage()
{
    Q_INIT_RESOURCE(page);
}

namespace AnimText::gallery {

namespace {

// The fifth has a picture for every step of a motion; slower ones show the same pictures for
// longer. Its pictures come first so that they stand in the order of the play.
constexpr int speedsInOrder[] = {5, 4, 3, 2, 1, 0, 6, 7, 8, 9};
constexpr int posterSpeed = 5;

const QString manifestName = "manifest.json";
const QString generator = "animtext gallery";

QString Digest(const QByteArray& content)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());
}

/** The content of a regular file, or nothing. */
QByteArray ContentOf(const QString& path)
{
    const QFileInfo info(path);
    QFile file(path);
    if (info.isSymLink() || !info.isFile() || !file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

/** The files that the manifest in @p folder lists and that nobody has changed since. */
QStringList OwnFiles(const QDir& folder)
{
    const QJsonObject manifest =
        QJsonDocument::fromJson(ContentOf(folder.filePath(manifestName))).object();
    if (manifest.value("generator").toString() != generator)
        return QStringList();
    static const QRegularExpression names(
        QRegularExpression::anchoredPattern("\\w+\\.(html|css|js|png)|"
                                            "motions/\\w+(-\\d+\\.png|\\.js)"));
    QStringList own{manifestName};
    const QJsonObject files = manifest.value("files").toObject();
    for (auto file = files.begin(); file != files.end(); ++file) {
        if (names.match(file.key()).hasMatch() &&
            Digest(ContentOf(folder.filePath(file.key()))) == file.value().toString())
            own.append(file.key());
    }
    return own;
}

QByteArray Script(const char* function, const QJsonObject& object)
{
    return QByteArray(function) + '(' + QJsonDocument(object).toJson(QJsonDocument::Compact) +
           ");\n";
}

/** A picture from the middle of the first page's entrance. */
int PosterPicture(const MotionPlay& play)
{
    const int end = play.pages.isEmpty() ? play.ticks : play.pages.first().hold - 1;
    int left = end * 3 / 5;
    for (const PictureRun& run : play.runs) {
        if (left < run.ticks)
            return run.picture;
        left -= run.ticks;
    }
    return 0;
}

QJsonArray ToJson(const QVector<timing::PageTime>& pages)
{
    QJsonArray array;
    for (const timing::PageTime& page : pages)
        array.append(QJsonArray{page.begin, page.hold - 1, page.end}); // its last picture
    return array;
}

QJsonObject ToJson(const GalleryEntry& entry)
{
    QJsonArray speeds;
    for (const MotionPlay& play : entry.plays)
        speeds.append(QJsonObject{{"ticks", play.ticks},
                                  {"planned", play.planned},
                                  {"actual", play.actual},
                                  {"times", TimesInWords(play)},
                                  {"pages", ToJson(play.pages)}});
    return {{"id", QLatin1String(entry.motion->name)},
            {"title", QLatin1String(entry.motion->title)},
            {"family", QLatin1String(entry.motion->family)},
            {"summary", QLatin1String(entry.motion->summary)},
            {"synonyms", QLatin1String(entry.motion->synonyms)},
            {"option", entry.option},
            {"speeds", speeds}};
}

/** The pictures, and which is seen for how many ticks, pair after pair, at each speed. */
QJsonObject PicturesToJson(const GalleryEntry& entry, const QVector<QByteArray>& pngs)
{
    QJsonArray sheets;
    for (const QByteArray& png : pngs)
        sheets.append(QString::fromLatin1(png.toBase64()));
    QJsonArray speeds;
    for (const MotionPlay& play : entry.plays) {
        QJsonArray runs;
        for (const PictureRun& run : play.runs) {
            runs.append(run.picture);
            runs.append(run.ticks);
        }
        speeds.append(runs);
    }
    return {{"id", QLatin1String(entry.motion->name)}, {"sheets", sheets}, {"runs", speeds}};
}

struct GalleryWriter
{
    const GalleryOptions& options;
    player::Player* player;
    GalleryWatch watch;
    files::WholeFolder folder{options.folder};
    QTemporaryDir scenes{files::TemporaryName()};
    PictureSheets posters{};
    QJsonObject digests{}; // of the files in the folder
    int done = 0;
    const int all = speedCount * (scene::Effects().size() + scene::Scrolls().size());

    void Write()
    {
        files::CheckMade(scenes);
        folder.Open(OwnFiles);
        QVector<GalleryEntry> entries;
        for (const scene::Motion& motion : scene::Effects())
            entries.append(WriteMotion(scene::Mode::Entrance, motion));
        for (const scene::Motion& motion : scene::Scrolls())
            entries.append(WriteMotion(scene::Mode::Scroll, motion));
        Add("posters.png", posters.Finish().value(0));
        QJsonArray motions;
        for (const GalleryEntry& entry : entries)
            motions.append(ToJson(entry));
        const QJsonObject all{{"words", options.words},
                              {"width", options.node.size.width()},
                              {"height", options.node.size.height()},
                              {"tick", player::tickLength},
                              {"sheet", PictureSheets::picturesInSheet},
                              {"motions", motions}};
        Add("motions.js", Script("showGallery", all));
        Add("index.html",
            FillPage(Own("index.html"), options.text.text.text, options.node.size, entries));
        for (const char* name : {"gallery.css", "film.js", "view.js", "gallery.js"})
            Add(QLatin1String(name), Own(name));
        const QJsonObject manifest{{"generator", generator}, {"files", digests}};
        folder.Add(manifestName, QJsonDocument(manifest).toJson());
        folder.Finish();
    }

    /** A file of the page. */
    static QByteArray Own(const char* name)
    {
        QFile file(":/gallery/" + QLatin1String(name));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("the program lacks its own %s", name);
        return file.readAll();
    }

    GalleryEntry WriteMotion(scene::Mode mode, const scene::Motion& motion)
    {
        scene::SceneNode node = options.node;
        const scene::NodeMotion nodeMotion{mode, motion.number};
        GalleryEntry entry;
        entry.motion = &motion;
        entry.option =
            mode == scene::Mode::Entrance
                ? QStringLiteral("--effect %1").arg(QLatin1String(motion.name))
                : QStringLiteral("--scroll %1").arg(scene::Directions().at(motion.number));
        PictureSheets sheets;
        for (int speed : speedsInOrder) {
            node.attributes[nodeMotion.SpeedKey()] = speed;
            author::AuthoredNode authored;
            QString error;
            files::FailUnless(author::AuthorNode(options.text, node, nodeMotion, &authored, &error),
                              error);
            const auto goOn = [this] { watch(done, all); };
            entry.plays[speed] = PlayMotion(player, Stage(authored), options.seed, goOn, &sheets);
            ++done;
        }
        const QVector<QByteArray> pngs = sheets.Finish();
        Add(QStringLiteral("motions/%1.js").arg(QLatin1String(motion.name)),
            Script("showMotion", PicturesToJson(entry, pngs)));
        entry.poster = AddPoster(pngs, PosterPicture(entry.plays[posterSpeed]));
        return entry;
    }

    /** @p authored alone on its display, its data files among those that are thrown away. */
    scene::Scene Stage(const author::AuthoredNode& authored)
    {
        scene::Scene scene;
        scene.path = scenes.filePath("scene.json");
        scene.display = authored.node.size;
        scene::SceneNode node = authored.node;
        for (auto file = authored.data.begin(); file != authored.data.end(); ++file) {
            node.files[file.key()] = scenes.filePath(file.key());
            files::WriteWhole(node.files[file.key()], file.value());
        }
        scene.pages.append(scene::ScenePage{{scene::SceneArea{{node}}}});
        return scene;
    }

    /** @return its number, which motions share whose posters are alike */
    int AddPoster(const QVector<QByteArray>& pngs, int number)
    {
        const QImage sheet =
            QImage::fromData(pngs.at(number / PictureSheets::picturesInSheet), "png")
                .convertToFormat(QImage::Format_RGB32);
        const int height = options.node.size.height();
        return posters.Add(
            sheet.copy(0, number % PictureSheets::picturesInSheet * height, sheet.width(), height));
    }

    void Add(const QString& name, const QByteArray& content)
    {
        folder.Add(name, content);
        digests.insert(name, Digest(content));
    }
};

} // namespace

qint64 WriteGallery(const GalleryOptions& options, player::Player* player,
                    const GalleryWatch& watch)
{
    LoadPage();
    GalleryWriter writer{options, player, watch};
    writer.Write();
    return writer.folder.Bytes();
}

} // namespace AnimText::gallery
