// Draws the five pictures of the hopping frog, Frog1.png to Frog5.png, into a folder.
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>

namespace {

// Drawn on a canvas of 32 x 24 units, the ground along its lower edge.
constexpr int width = 32;
constexpr int height = 24;
constexpr int oversampling = 8;

struct Pose
{
    double lift;    // of the body above the ground
    double stretch; // 0 crouching .. 1 leaping
    double tilt;    // degrees, nose up
    bool blinks;
};

const Pose poses[] = {
    {0.0, 0.0, 0, false},  {2.5, 0.6, -16, false}, {6.0, 1.0, -4, false},
    {2.5, 0.6, 12, false}, {0.0, 0.0, 0, true},
};

const QColor skin(0x4c, 0xb8, 0x4a);
const QColor shade(0x2f, 0x86, 0x3b);
const QColor belly(0xd8, 0xee, 0x9a);
const QColor outline(0x17, 0x45, 0x22);

void DrawLeg(QPainter& painter, const QPointF& hip, const QPointF& knee, const QPointF& foot)
{
    QPainterPath leg(hip);
    leg.lineTo(knee);
    leg.lineTo(foot);
    leg.lineTo(foot + QPointF(3, 0.4));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(outline, 3.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(leg);
    painter.setPen(QPen(shade, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(leg);
}

void DrawEye(QPainter& painter, const QPointF& centre, bool blinks)
{
    painter.setPen(QPen(outline, 0.8));
    painter.setBrush(skin);
    painter.drawEllipse(centre, 3.0, 3.0);
    if (blinks) {
        painter.drawLine(centre + QPointF(-1.6, 0.3), centre + QPointF(1.6, 0.3));
        return;
    }
    painter.setBrush(Qt::white);
    painter.drawEllipse(centre + QPointF(0.3, -0.2), 2.0, 2.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x18, 0x18, 0x20));
    painter.drawEllipse(centre + QPointF(0.9, -0.1), 1.1, 1.3);
}

void DrawFrog(QPainter& painter, const Pose& pose)
{
    const double ground = height - 2;
    painter.translate(15.5, ground - 6 - pose.lift);
    painter.rotate(pose.tilt);

    const double s = pose.stretch;
    // Hind leg: folded beside the body, or trailing behind it.
    DrawLeg(painter, QPointF(-5, 2), QPointF(-9 - 2 * s, 0.5 + 2 * s),
            QPointF(-7 - 7 * s, 5.4 + 0.6 * s));
    DrawLeg(painter, QPointF(5, 2.5), QPointF(6 + 2 * s, 4 - s), QPointF(5 + 5 * s, 5.6 - 2 * s));

    painter.setPen(QPen(outline, 0.9));
    painter.setBrush(skin);
    painter.drawEllipse(QPointF(0, 0), 9.0 + s, 5.8 - 0.6 * s);
    painter.setPen(Qt::NoPen);
    painter.setBrush(belly);
    painter.drawEllipse(QPointF(2.5, 2.4), 5.4, 2.6);

    QPainterPath mouth(QPointF(3.5, 0.4));
    mouth.quadTo(QPointF(6.5, 2.6), QPointF(9.0, -0.6));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(outline, 0.8, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(mouth);

    DrawEye(painter, QPointF(2.2, -5.2), pose.blinks);
    DrawEye(painter, QPointF(7.0, -4.8), pose.blinks);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: draw-frogs FOLDER\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    int number = 0;
    for (const Pose& pose : poses) {
        QImage large(width * oversampling, height * oversampling,
                     QImage::Format_ARGB32_Premultiplied);
        large.fill(Qt::transparent);
        QPainter painter(&large);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(oversampling, oversampling);
        DrawFrog(painter, pose);
        painter.end();

        const QString file = folder.filePath(QStringLiteral("Frog%1.png").arg(++number));
        const QImage frog =
            large.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(QImage::Format_ARGB32);
        if (!frog.save(file)) {
            std::fprintf(stderr, "draw-frogs: cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
