/**
 * @file
 * Scenes whose glyphs are rectangles, and their files in a folder of the test's own.
 */
#ifndef TESTSCENE_H
#define TESTSCENE_H

#include "glyphfiles.h"
#include "scene.h"

#include <QFile>
#include <QTemporaryDir>

namespace AnimText {

/** What a test wants to be different from one text to the next. */
struct TextWishes
{
    QString text = QStringLiteral("abc");
    int effect = 4;
    int speed = 9;
    int hold = 0;
    int plays = 1;
    QSize area{64, 32};
    int width = 16; ///< of every character
};

constexpr int testHeight = 20;
constexpr int testDescent = 4;

/** A folder with scenes. Every character is a rectangle 2 pixels inside its cell. */
class TestScenes
{
public:
    QString Path(const QString& name) const { return folder.filePath(name); }
    QString Folder() const { return folder.path(); }
    bool IsValid() const { return folder.isValid(); }

    SceneNode Node(const TextWishes& wishes)
    {
        const int count = wishes.text.size();
        QPainterPath glyph;
        glyph.addRect(2, testDescent - testHeight + 2, wishes.width - 4, testHeight - 4);
        const QString base = QStringLiteral("node%1").arg(nodes++);
        Write(base + QStringLiteral(".path"), PathFile(QVector<QPainterPath>(count, glyph)));
        Write(base + QStringLiteral(".descent"), DescentFile(QVector<int>(count, testDescent)));

        SceneNode node;
        node.size = wishes.area;
        node.hold = wishes.hold;
        node.attributes = {{QStringLiteral("Text"), wishes.text},
                           {QStringLiteral("AnimationEffect"), wishes.effect},
                           {QStringLiteral("AnimationSpeed"), wishes.speed},
                           {QStringLiteral("ContinueSpeed"), wishes.speed},
                           {QStringLiteral("PlayTimes"), wishes.plays}};
        for (int i = 0; i < count; ++i) {
            node.lists[QStringLiteral("TextWidth")].append(
                {{QStringLiteral("text_width"), QString::number(wishes.width)}});
            node.lists[QStringLiteral("TextHeight")].append(
                {{QStringLiteral("text_height"), QString::number(testHeight)}});
            node.lists[QStringLiteral("TextAttribute")].append(
                {{QStringLiteral("Color"), QString::number(0xFFA040)}});
        }
        node.files = {{QStringLiteral("PathData"), base + QStringLiteral(".path")},
                      {QStringLiteral("DescentVector"), base + QStringLiteral(".descent")}};
        return node;
    }

    /** A scene of @p list in one area. */
    static Scene Of(const QList<SceneNode>& list)
    {
        Scene scene;
        scene.display = QSize(1, 1);
        for (const SceneNode& node : list)
            scene.display = scene.display.expandedTo(node.size);
        scene.pages = {ScenePage{{SceneArea{list}}}};
        return scene;
    }

    /** Writes the scene. @return its path */
    QString Save(const Scene& scene, const QString& name = QStringLiteral("scene.json"))
    {
        Write(name, SceneToJson(scene));
        return Path(name);
    }

    void Write(const QString& name, const QByteArray& content)
    {
        QFile file(Path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("the test cannot write %s", qPrintable(file.fileName()));
    }

private:
    QTemporaryDir folder;
    int nodes = 0;
};

} // namespace AnimText

#endif
