// Writes the scenes and data files that the transcripts beside this file use into the folder where
// it is run.
#include "testscene.h"

using namespace AnimText;

int main()
{
    TestScenes scenes;
    scenes.Save(scenes.Of({scenes.Node({})}), "one.json");                  // 4 pictures
    scenes.Save(scenes.Of({scenes.Node({"abcdef", 9, 9, 3})}), "two.json"); // of two pages
    scenes.Save(scenes.Of({scenes.Node({"abc", 4, 9, 3})}), "held.json");   // for 300 ms
    scenes.Save(scenes.Of({scenes.Node({"abc", 4, 9, 0, 1000000})}), "endless.json");
    scenes.Write("bad.json", R"({"scene": 1, "display": {"width": 8, "height": 8}, "pages": 1})");
    // It just fits.
    scenes.Save(scenes.Of({scenes.Node({"ab", 4, 5, 20, 1, {100, 20}, 10})}), "ab.json");
    QPainterPath box, far;
    box.addRect(0, -10, 8, 10);
    far.addRect(0, 0, 2e6, 1);
    scenes.Write("one.path", layout::PathFile({box}));
    scenes.Write("three.path", layout::PathFile({box, box, box}));
    scenes.Write("far.path", layout::PathFile({box, far}));
    scenes.Write("gap.path", layout::PathFile({box, QPainterPath()}));
    scenes.Write("torn", layout::PathFile({box, box}).left(60));
    for (const QString& name : scenes.Listing())
        if (!QFile::copy(scenes.Path(name), name))
            qFatal("cannot write %s", qPrintable(name));
}
