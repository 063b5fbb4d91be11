#include "compare/expectation.h"

#include "files/failure.h"

#include <QRegularExpression>

namespace AnimText::compare {

namespace {

constexpr int digits = 16; // of a SHA-1

/** Everything except the pictures. */
bool SamePlay(const Ticks& a, const Ticks& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const player::NodeTick& x, const player::NodeTick& y) {
                          return x.tick == y.tick && x.swapped == y.swapped && x.size == y.size &&
                                 x.state == y.state;
                      });
}

} // namespace

Expectation ReadExpectation(const QString& path)
{
    QFile file(path);
    files::OpenToRead(&file);
    static const QRegularExpression form(
        "\\A(.*) (\\d+) ([01]) (\\d+) (\\d+) (-|[0-9a-f]{16}) ([012])(?: ([0-9a-f]{16}))?\\n?\\z");
    Expectation expectation;
    for (int number = 1; !file.atEnd(); ++number) {
        const QRegularExpressionMatch line = form.match(QString::fromUtf8(file.readLine()));
        if (!line.hasMatch())
            throw files::Failure{files::BadInput,
                                 QStringLiteral("%1: line %2: expected scene, tick, 0 or 1, width, "
                                                "height, %3 digits of the SHA-1 or -, state")
                                     .arg(path)
                                     .arg(number)
                                     .arg(digits)};
        const QByteArray sha1 = line.captured(6).toLatin1();
        expectation[line.captured(1)].append(
            {line.captured(2).toInt(), line.captured(3) == QLatin1String("1"),
             QSize(line.captured(4).toInt(), line.captured(5).toInt()),
             sha1 == "-" ? QByteArray() : sha1, line.captured(7).toInt(),
             line.captured(8).toLatin1()});
    }
    return expectation;
}

QByteArray ExpectationText(const Expectation& expectation)
{
    QByteArray text;
    for (auto scene = expectation.begin(); scene != expectation.end(); ++scene)
        for (const player::NodeTick& tick : *scene) {
            QByteArrayList words{scene.key().toUtf8(),
                                 QByteArray::number(tick.tick),
                                 tick.swapped ? "1" : "0",
                                 QByteArray::number(tick.size.width()),
                                 QByteArray::number(tick.size.height()),
                                 tick.sha1.isEmpty() ? "-" : tick.sha1.left(digits),
                                 QByteArray::number(tick.state)};
            if (!tick.background.isEmpty())
                words.append(tick.background.left(digits));
            text += words.join(' ') + '\n';
        }
    return text;
}

void Tally::Aspect::Add(const QString& scene, bool isKnown, bool isEqual)
{
    scenes += isKnown;
    if (!isEqual)
        differ.append(scene);
}

void Tally::Add(const QString& scene, const scene::NodeMotion& motion, const Ticks& expected,
                const Ticks& shown)
{
    Row& row = rows[{motion.mode, motion.number}];
    row.motion = motion.Row() ? motion.Row()->name : "no motion";
    ++row.scenes;
    int compared = 0, equal = 0;
    bool knowsBackground = false, sameBackground = true;
    for (int i = 0; i < expected.size(); ++i) {
        const player::NodeTick& was = expected[i];
        const player::NodeTick now = shown.value(i);
        if (!was.background.isEmpty()) {
            knowsBackground = true;
            sameBackground = sameBackground && now.background.left(digits) == was.background;
        }
        if (!was.swapped || was.sha1.isEmpty())
            continue;
        ++compared;
        if (now.sha1.left(digits) == was.sha1)
            ++equal;
        else if (row.firstDifference.isEmpty())
            row.firstDifference = QStringLiteral("%1, tick %2").arg(scene).arg(was.tick);
    }
    row.pictures += compared;
    row.equal += equal;
    ticks.Add(scene, true, SamePlay(expected, shown));
    pictures.Add(scene, compared > 0, equal == compared);
    backgrounds.Add(scene, knowsBackground, sameBackground);
}

bool Tally::IsEqual() const
{
    return ticks.differ.isEmpty() && pictures.differ.isEmpty() && backgrounds.differ.isEmpty();
}

QByteArray Tally::Table() const
{
    QString table = "    motion                               scenes  pictures    equal"
                    "  first difference\n";
    const auto add = [&table](const QString& number, const Row& row) {
        table += QString::asprintf("%2s  %-36s%7d%10d%9d%s%s\n", qPrintable(number), row.motion,
                                   row.scenes, row.pictures, row.equal,
                                   row.firstDifference.isEmpty() ? "" : "  ",
                                   qUtf8Printable(row.firstDifference));
    };
    Row all;
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        add(QString::number(row.key().second), *row);
        all.scenes += row->scenes;
        all.pictures += row->pictures;
        all.equal += row->equal;
    }
    add(QString(), all);
    table += QLatin1Char('\n');
    QString differences;
    for (const Aspect* aspect : {&ticks, &pictures, &backgrounds}) {
        if (aspect->scenes > 0 || aspect != &backgrounds)
            table += QStringLiteral("%1: equal in %2 of %3 scenes\n")
                         .arg(QLatin1String(aspect->ofAll))
                         .arg(aspect->scenes - aspect->differ.size())
                         .arg(aspect->scenes);
        if (!aspect->differ.isEmpty())
            differences += QStringLiteral("%1 differ: %2\n")
                               .arg(QLatin1String(aspect->ofScene), aspect->differ.join(", "));
    }
    return (table + differences).toUtf8();
}

} // namespace AnimText::compare
