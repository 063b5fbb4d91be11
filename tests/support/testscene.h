/**
 * @file
 * Scenes whose glyphs are rectangles, and their files in a folder of the test's own.
 */
#pragma once

#include "layout/glyphfiles.h"
#include "scene/scene.h"
#include "testfolder.h"

namespace AnimText {

/** What a test wants to be different from one text to the next. */
struct TextOptions
{
    QString text = "abc";
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
class TestScenes : public TestFolder
{
public:
    /** A node with these options and @p more attributes. */
    scene::SceneNode Node(const TextOptions& options, const QMap<QString, QVariant>& more = {})
    {
        const int count = options.text.size();
        QPainterPath glyph;
        glyph.addRect(2, testDescent - testHeight + 2, options.width - 4, testHeight - 4);
        const QString base = QString("node%1").arg(nodes++);
        Write(base + ".path", layout::PathFile(QVector<QPainterPath>(count, glyph)));
        Write(base + ".descent", layout::DescentFile(QVector<int>(count, testDescent)));

        scene::SceneNode node;
        node.size = options.area;
        node.hold = options.hold;
        node.attributes = {{"Text", options.text},
                           {"AnimationEffect", options.effect},
                           {"AnimationSpeed", options.speed},
                           {"ContinueSpeed", options.speed},
                           {"PlayTimes", options.plays}};
        node.attributes.insert(more);
        for (int i = 0; i < count; ++i) {
            node.lists["TextWidth"].append({{"text_width", QString::number(options.width)}});
            node.lists["TextHeight"].append({{"text_height", QString::number(testHeight)}});
            node.lists["TextAttribute"].append({{"fontName", "DejaVu Sans"},
                                                {"fontSize", "12"},
                                                {"bold", "0"},
                                                {"italic", "0"},
                                                {"underline", "0"},
                                                {"Color", QString::number(0xFFA040)}});
        }
        node.files = {{"PathData", base + ".path"}, {"DescentVector", base + ".descent"}};
        return node;
    }

    /** A scene of @p list in one area. */
    scene::Scene Of(const QList<scene::SceneNode>& list) const
    {
        scene::Scene scene;
        scene.path = Path("scene.json");
        scene.display = QSize(1, 1);
        for (const scene::SceneNode& node : list)
            scene.display = scene.display.expandedTo(node.size);
        scene.pages = {scene::ScenePage{{scene::SceneArea{list}}}};
        return scene;
    }

    /** Writes the scene. @return its path */
    QString Save(const scene::Scene& scene, const QString& name = "scene.json")
    {
        return Write(name, scene::SceneToJson(scene));
    }

private:
    int nodes = 0;
};

} // namespace AnimText
