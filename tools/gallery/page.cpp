#include "gallery/page.h"

#include <cstdlib>

namespace AnimText::gallery {

namespace {

// A difference of this part of the planned time has the full color.
constexpr double fullColor = 0.15;

QString Seconds(qint64 milliseconds, int digits = 2)
{
    return QString::number(double(milliseconds) / 1000, 'f', digits);
}

/** How much longer than planned; 0 where the display shows no difference. */
qint64 Excess(const MotionPlay& play)
{
    const qint64 excess = play.actual - play.planned;
    return play.actual < 0 || std::llabs(excess) <= player::tickLength ? 0 : excess;
}

QString Card(const GalleryEntry& entry, const QSize& size, int posters)
{
    const scene::Motion& motion = *entry.motion;
    const QString number = motion.family == scene::Scrolls().first().family
                               ? QString()
                               : QString::number(motion.number);
    return QStringLiteral(R"(<li id="card-%1"><div class="screen">
<svg viewBox="0 %2 %3 %4" width="%3" height="%4" role="img" aria-label="%5: %6"><image href="posters.png" width="%3" height="%7"/></svg>
</div><div class="text"><h2><span class="number">%8</span> %5</h2>
<p class="summary">%6</p><p class="name">%1</p></div></li>
)")
        .arg(QLatin1String(motion.name))
        .arg(entry.poster * size.height())
        .arg(size.width())
        .arg(size.height())
        .arg(QString::fromLatin1(motion.title).toHtmlEscaped(),
             QString::fromLatin1(motion.summary).toHtmlEscaped())
        .arg(posters * size.height())
        .arg(number);
}

QString Row(const GalleryEntry& entry)
{
    QString row = QStringLiteral("<tr><th scope=\"row\">%1</th>")
                      .arg(QString::fromLatin1(entry.motion->title).toHtmlEscaped());
    for (const MotionPlay& play : entry.plays) {
        const qint64 excess = Excess(play);
        const double part =
            excess == 0 ? 0 : double(std::llabs(excess)) / double(qMax(1LL, play.planned));
        const char* const kind = play.actual < 0 ? "device"
                                 : excess > 0    ? "long"
                                 : excess < 0    ? "short"
                                                 : "even";
        row += QStringLiteral("<td class=\"%1\" style=\"--part:%2%\" title=\"%3\">%4</td>")
                   .arg(QLatin1String(kind))
                   .arg(qRound(100 * qMin(1.0, part / fullColor)))
                   .arg(TimesInWords(play), play.actual < 0 ? "∞" : Seconds(play.actual, 1));
    }
    return row + "</tr>\n";
}

} // namespace

QString TimesInWords(const MotionPlay& play)
{
    const QString planned = QStringLiteral("planned %1 s · ").arg(Seconds(play.planned));
    if (play.actual < 0)
        return planned +
               QStringLiteral("the device scrolls until it is stopped, once through in %1 s")
                   .arg(Seconds(qint64(play.ticks) * player::tickLength));
    const qint64 excess = Excess(play);
    QString times = planned + QStringLiteral("actual %1 s").arg(Seconds(play.actual));
    if (excess > 0)
        times += QStringLiteral(" · the last %1 s are cut off").arg(Seconds(excess));
    if (excess < 0)
        times += QStringLiteral(" · begins again for the last %1 s").arg(Seconds(-excess));
    return times;
}

QByteArray FillPage(const QByteArray& page, const QString& text, const QSize& size,
                    const QVector<GalleryEntry>& entries)
{
    int posters = 0;
    for (const GalleryEntry& entry : entries)
        posters = qMax(posters, entry.poster + 1);
    QString cards;
    QString rows;
    for (const GalleryEntry& entry : entries) {
        cards += Card(entry, size, posters);
        rows += Row(entry);
    }
    QString head = "<thead><tr><th scope=\"col\">speed</th>";
    for (int speed = 0; speed < speedCount; ++speed)
        head += QStringLiteral("<th scope=\"col\">%1</th>").arg(speed);
    const QString about = QStringLiteral("“%1” in %2 motions, %3 × %4 pixels, as the sign paints "
                                         "them, a picture for every tick of %5 ms.")
                              .arg(text.toHtmlEscaped())
                              .arg(entries.size())
                              .arg(size.width())
                              .arg(size.height())
                              .arg(player::tickLength);
    // The text comes last: it may look like a place.
    return QByteArray(page)
        .replace("<!--cards-->", cards.toUtf8())
        .replace("<!--times-->", (head + "</tr></thead><tbody>\n" + rows + "</tbody>").toUtf8())
        .replace("<!--about-->", about.toUtf8());
}

} // namespace AnimText::gallery
