// Draws the five pictures of the hopping frog, Frog1.png to Frog5.png, into a folder.
//
// Every pixel is wholly there or not at all: what is painted over text must not depend on how a
// processor rounds the mixing of colors.
#include <QDir>
#include <QImage>

#include <cstdio>
#include <cstring>

namespace {

constexpr int width = 32;
constexpr int height = 24;

QRgb ColorOf(char pixel)
{
    switch (pixel) {
    case 'o': return 0xFF174522; // outline
    case 's': return 0xFF4CB84A; // skin
    case 'l': return 0xFF8BDD5E; // skin in the light
    case 'd': return 0xFF2F863B; // legs
    case 'b': return 0xFFD8EE9A; // belly
    case 'c': return 0xFFF08A8A; // cheek
    case 'w': return 0xFFFFFFFF;
    case 'k': return 0xFF181820; // pupil
    default: return 0;
    }
}

using Drawing = const char* const*; // rows, ended by a null

const char* const body[] = {
    "..........ooo..ooo.", //
    ".........owwwoowwwo", //
    ".........owkkoowkko", //
    ".....ooooowkkoowkko", //
    "...oollllssssssssso", //
    "..ollllsssssssssssso", ".olllssssssssssscsso", ".ollssssssssooooooo.", "osssssssssbbbbbbbbo.",
    "ossssssssbbbbbbbbo..", ".osssssssbbbbbbbo...", "..ooooooooooooo.....", nullptr};

const char* const closedEyes[] = {"sss..sss", "ooo..ooo", "sss..sss", nullptr};

const char* const folded[] = {"..oooo............", //
                              ".oddddo...........", //
                              "odddddo......oddo.", //
                              "oddddo.......oddo.", //
                              ".oddddddo....odddo", "..ooooooo.....oooo", nullptr};

const char* const pushing[] = {".....oooo.............", //
                               "....oddddo............", //
                               "...oddddo.......oddo..", //
                               "..odddoo.........oddo.", //
                               ".odddo............oddo", //
                               "odddddo............ooo", ".ooooo................", nullptr};

const char* const trailing[] = {"......oooo",                //
                                ".ooooddddo",                //
                                "oddddddddo",                //
                                "oddooooo...........ooooo",  //
                                "oo................odddddo", //
                                "...................oooooo",
                                nullptr};

struct Pose
{
    Drawing legs;
    int top;      // of the body
    int legsLeft; // from the body's left edge
    int legsTop;  // from its top
    bool blinks;
};

const Pose poses[] = {
    {folded, 11, 0, 7, false},  {pushing, 7, -3, 8, false}, {trailing, 3, -6, 7, false},
    {pushing, 7, -3, 8, false}, {folded, 11, 0, 7, true},
};

void Draw(QImage& image, int left, int top, Drawing rows)
{
    for (int y = 0; rows[y]; ++y)
        for (int x = 0; rows[y][x]; ++x)
            if (const QRgb color = ColorOf(rows[y][x]))
                image.setPixel(left + x, top + y, color);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: draw-frogs FOLDER\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    constexpr int left = 7;
    int number = 0;
    for (const Pose& pose : poses) {
        QImage frog(width, height, QImage::Format_ARGB32);
        frog.fill(0);
        Draw(frog, left, pose.top, body);
        if (pose.blinks)
            Draw(frog, left + 10, pose.top + 1, closedEyes);
        Draw(frog, left + pose.legsLeft, pose.top + pose.legsTop, pose.legs);
        const QString file = folder.filePath(QStringLiteral("Frog%1.png").arg(++number));
        if (!frog.save(file)) {
            std::fprintf(stderr, "draw-frogs: cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
