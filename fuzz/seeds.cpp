// fuzz-seeds FOLDER: writes what the fuzzers start from, a folder for each, and a dictionary of the
// words of the scene file. They come from the author library, as real scenes do, and from the
// table of what can be wrong about glyphs.
#include "author/author.h"
#include "scene/attributes.h"
#include "support/malformedglyphs.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTextStream>

using namespace AnimText;

namespace {

constexpr int largestSeed = 4096; // bytes; fuzzers find their way faster from small ones

struct Sample
{
    const char* text;
    int pixels;
    int motion;
    bool scrolls;
    bool fancy; // everything that a scene can say
};

const Sample samples[] = {
    {"A", 12, 0, false, false},
    {"Hi!", 18, 11, false, true},
    {" ", 16, 4, false, false},
    {"Gleis 7: \xc3\xbc\xc3\xa7\xc3\xa9", 24, 19, false, true},
    {"\xce\xa9 \xd0\x96 \xf0\x9f\x98\x80", 20, 2, true, false},
    {"scroll", 9, 0, true, true},
};

void Write(const QDir& folder, const char* target, int number, const QByteArray& bytes)
{
    folder.mkpath(QLatin1String(target));
    QFile file(folder.filePath(QStringLiteral("%1/seed%2").arg(QLatin1String(target)).arg(number)));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("fuzz-seeds: %s cannot be written", qPrintable(file.fileName()));
}

/** What a data file holds behind its length, decoded. */
QByteArray Inner(const QByteArray& file)
{
    return QByteArray::fromBase64(file.mid(4));
}

QByteArray SceneOf(const author::AuthoredNode& authored, const Sample& sample)
{
    scene::SceneNode node = authored.node;
    node.files[QStringLiteral("PathData")] = QStringLiteral("a.path");
    node.files[QStringLiteral("DescentVector")] = QStringLiteral("a.descent");
    if (sample.fancy) {
        for (const QString& key : scene::KeysOf(scene::Home::Attributes)) {
            if (!node.attributes.contains(key))
                node.attributes[key] = 1;
        }
        node.pos = QPoint(-3, 4);
    }
    scene::Scene scene;
    scene.display = QSize(64, 32);
    scene.alphaBlend = !sample.fancy;
    scene.pages = {scene::ScenePage{{scene::SceneArea{{node}}}}};
    return scene::SceneToJson(scene);
}

void WriteDictionary(const QDir& folder)
{
    QStringList words = scene::KeysOf(scene::Home::Attributes) + scene::ListKeys() +
                        scene::KeysOf(scene::Home::Files);
    for (const QString& key : scene::ListKeys())
        words += scene::RowFields(key);
    for (const char* word : {"scene", "display", "width", "height", "alphaBlend", "pages", "areas",
                             "nodes", "type", "pos", "size", "hold", "neonEffect", "attributes",
                             "lists", "files", "true", "-2147483648", "1e999"})
        words.append(QLatin1String(word));
    QFile file(folder.filePath(QStringLiteral("scene.dict")));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("fuzz-seeds: %s cannot be written", qPrintable(file.fileName()));
    QTextStream out(&file);
    for (const QString& word : words)
        out << '"' << word << "\"\n";
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    if (QCoreApplication::arguments().size() != 2)
        qFatal("usage: fuzz-seeds FOLDER");
    const QDir folder(QCoreApplication::arguments().at(1));
    folder.mkpath(QStringLiteral("."));

    int number = 0;
    for (const Sample& sample : samples) {
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(sample.pixels);
        font.setUnderline(sample.fancy);
        author::TextSource source;
        source.text.Append(QString::fromUtf8(sample.text), {0, font, QColor(255, 160, 0)});
        const scene::NodeMotion motion{sample.scrolls ? scene::Mode::Scroll : scene::Mode::Entrance,
                                       sample.motion};
        author::AuthoredNode authored;
        QString error;
        if (!author::AuthorNode(source, {}, motion, &authored, &error)) {
            qWarning("fuzz-seeds: %s", qPrintable(error));
            return 1;
        }
        Write(folder, "pathfile", number, authored.data["PathData"]);
        Write(folder, "pathdata", number, Inner(authored.data["PathData"]));
        Write(folder, "descentfile", number, authored.data["DescentVector"]);
        Write(folder, "descentdata", number, Inner(authored.data["DescentVector"]));
        Write(folder, "scene", number, SceneOf(authored, sample));
        ++number;
    }
    for (const Glyphs::Sample& sample : Glyphs::OutlineSamples()) {
        if (sample.bytes.size() > largestSeed)
            continue;
        Write(folder, "pathdata", number, sample.bytes);
        Write(folder, "pathfile", number++, Glyphs::File(sample.bytes));
    }
    for (const Glyphs::Sample& sample : Glyphs::DescentSamples()) {
        Write(folder, "descentdata", number, sample.bytes);
        Write(folder, "descentfile", number++, Glyphs::File(sample.bytes));
    }
    for (const Glyphs::Sample& sample : Glyphs::FileSamples()) {
        Write(folder, "pathfile", number, sample.bytes);
        Write(folder, "descentfile", number++, sample.bytes);
    }
    WriteDictionary(folder);
    return 0;
}
