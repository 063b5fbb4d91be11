#include "samples.h"

#include "author/author.h"

#include <QFile>

using namespace AnimText;

namespace {

void WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(path));
}

} // namespace

QByteArray RowName(int motion, int background)
{
    const scene::Motion& told = motion < firstScroll ? scene::Effects().at(motion)
                                                     : scene::Scrolls().at(motion - firstScroll);
    QByteArray name = QByteArray::number(told.number) + ' ' + told.name;
    if (background & WithNeon)
        name += ", neon";
    if (background & WithDazzle)
        name += ", dazzle";
    return name;
}

void SetMotion(scene::SceneNode* node, int motion, int speed)
{
    const bool scrolls = motion >= firstScroll;
    node->attributes[QStringLiteral("EffectType")] = scrolls ? 1 : 0;
    node->attributes[QStringLiteral("AnimationEffect")] = scrolls ? 0 : motion;
    node->attributes[QStringLiteral("ContinueStyle")] = scrolls ? motion - firstScroll : 0;
    node->attributes[QStringLiteral("AnimationSpeed")] = speed;
    node->attributes[QStringLiteral("ContinueSpeed")] = speed;
}

void SetBackground(scene::SceneNode* node, int background)
{
    node->attributes[QStringLiteral("CheckNeonBg")] = background & WithNeon ? 1 : 0;
    node->attributes[QStringLiteral("CheckDazzle")] = background & WithDazzle ? 1 : 0;
}

Sample::Sample(const QString& text, QSize area)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(48);
    author::TextSource source;
    source.text.Append(text, {0, font, QColor(255, 160, 0)});
    source.fit = layout::Fit::Line;
    scene::SceneNode settings;
    settings.size = area;
    settings.hold = 2;
    settings.attributes[QStringLiteral("PlayTimes")] = 1;
    author::AuthoredNode authored;
    QString error;
    if (!author::AuthorNode(source, settings, {scene::Mode::Entrance, 4}, &authored, &error))
        qFatal("%s", qPrintable(error));
    base = authored.node;
    base.files[QStringLiteral("PathData")] = File(QStringLiteral("sample.path"));
    base.files[QStringLiteral("DescentVector")] = File(QStringLiteral("sample.descent"));
    WriteFile(File(QStringLiteral("sample.path")), authored.data["PathData"]);
    WriteFile(File(QStringLiteral("sample.descent")), authored.data["DescentVector"]);
}

scene::SceneNode Sample::Node(int motion, int background, int speed) const
{
    scene::SceneNode node = base;
    SetMotion(&node, motion, speed);
    SetBackground(&node, background);
    return node;
}
