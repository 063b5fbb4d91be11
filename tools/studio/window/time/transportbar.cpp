#include "studio/window/time/transportbar.h"

#include "studio/window/basics/style.h"

#include <QPainter>

#include <algorithm>

namespace AnimText::studio::window::time {
namespace {

constexpr int narrowWidth = 520; // logical pixels; below it, ticks and spare buttons are hidden

/** A label without a minimum width; if it is too narrow, it shows only the part after the last "·".
 */
class ShortLabel : public QLabel
{
public:
    explicit ShortLabel(QWidget* parent)
        : QLabel(parent)
    {
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const QRect room = contentsRect();
        const bool isWhole = fontMetrics().horizontalAdvance(text()) <= room.width();
        const QString words = isWhole ? text() : text().section(" · ", -1);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(room, int(Qt::AlignRight | Qt::AlignVCenter),
                         fontMetrics().elidedText(words, Qt::ElideRight, room.width()));
    }
};

/** Number of pages that would begin after the host has stopped the text. */
int LostPages(const worker::TextTime& text)
{
    return int(
        std::count_if(text.pages.begin(), text.pages.end(), [&](const timing::PageTime& page) {
            return qint64(page.begin) * player::tickLength >= text.planned;
        }));
}

} // namespace

TransportBar::TransportBar(Playback* playback, QWidget* parent)
    : QWidget(parent)
    , playback(playback)
    , ends(new ShortLabel(this))
{
    const auto by = [playback](int ticks) {
        return [=] { playback->Seek(playback->Tick() + ticks); };
    };
    auto* start =
        Make("media-skip-backward", tr("Go to start"), tr("Home"), [=] { playback->Seek(0); });
    auto* back = Make("step-back", tr("One tick back"), "←", by(-1));
    play = Make("media-playback-start", tr("Play"), tr("Space"), [=] { playback->Toggle(); });
    auto* forward = Make("step-forward", tr("One tick forward"), "→", by(1));
    auto* end = Make("media-skip-forward", tr("Go to end"), tr("End"),
                     [=] { playback->Seek(playback->Length() - 1); });
    spare = {start, end}; // the Home and End keys do the same
    loop =
        Make("media-playlist-repeat", tr("Loop the page"), tr("R"), [this] { emit LoopToggled(); });
    loop->setToolTip(loop->toolTip() + QLatin1Char('\n') +
                     tr("Shift+drag on the timeline loops a range"));
    loop->setCheckable(true);

    what->addItems({tr("This page"), tr("All pages")});
    what->setAccessibleName(tr("What to play"));
    what->setToolTip(tr("This page: until all its texts have ended.\nAll pages: one after another, "
                        "each for its planned time, as on the host."));
    connect(what, qOverload<int>(&QComboBox::activated), this,
            [this](int index) { emit ScheduleChanged(index == 1); });

    time->setFont(basics::TabularFont(font(), 1));
    time->setMinimumWidth(time->fontMetrics().horizontalAdvance("0000.00 s"));
    ends->setFont(basics::TabularFont(font()));

    time->setIndent(2 * basics::grid);
    ends->setContentsMargins(0, 0, 2 * basics::grid, 0);
    auto* row =
        basics::Arrange(Qt::Horizontal, basics::grid / 2,
                        {start, back, play, forward, end, loop, time, ends, what}, basics::grid);
    row->setStretchFactor(ends, 1);
    setLayout(row);

    connect(playback, &Playback::TickChanged, this, &TransportBar::ShowTime);
    connect(playback, &Playback::PaceChanged, this, &TransportBar::ShowPace);
    connect(playback, &Playback::RangeChanged, this,
            [=] { loop->setChecked(playback->HasLoop()); });
    ShowTime();
}

QToolButton* TransportBar::Make(const QString& icon, const QString& name, const QString& key,
                                const std::function<void()>& act)
{
    auto* button = new QToolButton(this);
    button->setAutoRaise(true);
    button->setIcon(basics::Icon(icon));
    button->setAccessibleName(name);
    button->setToolTip(QStringLiteral("%1 (%2)").arg(name, key));
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, act);
    return button;
}

void TransportBar::ShowTime()
{
    const QString seconds = basics::SecondsText(qint64(playback->Tick()) * player::tickLength);
    const QString both = tr("%1  tick %2").arg(seconds).arg(playback->Tick());
    const bool isNarrow = width() < narrowWidth;
    time->setText(isNarrow ? seconds : both);
    time->setToolTip(both);
}

void TransportBar::resizeEvent(QResizeEvent*)
{
    for (QToolButton* button : spare)
        button->setVisible(width() >= narrowWidth);
    ShowTime();
}

void TransportBar::ShowPace()
{
    play->setIcon(
        basics::Icon(playback->IsPlaying() ? "media-playback-pause" : "media-playback-start"));
    const QString name = playback->IsPlaying() ? tr("Stop") : tr("Play");
    play->setAccessibleName(name);
    play->setToolTip(QStringLiteral("%1 (%2)").arg(name, tr("Space")));
}

worker::TextTime SideBySide(const QVector<worker::TextTime>& texts)
{
    worker::TextTime all;
    all.ending = timing::Ending::Finishes;
    all.actual = 0;
    for (const worker::TextTime& text : texts) {
        if (text.ending == timing::Ending::TooLong)
            all.ending = timing::Ending::TooLong;
        all.planned = std::max(all.planned, text.planned);
        all.actual = std::max(all.actual, text.actual);
    }
    return all;
}

QString EndsInWords(const worker::TextTime& text)
{
    if (text.ending == timing::Ending::NothingToPlay)
        return TransportBar::tr("this text is empty");
    if (text.ending == timing::Ending::TooLong)
        return TransportBar::tr("planned %1 · too long to measure")
            .arg(basics::SecondsText(text.planned));
    QString words = TransportBar::tr("planned %1 · needs %2")
                        .arg(basics::SecondsText(text.planned), basics::SecondsText(text.actual));
    const qint64 difference = text.actual - text.planned;
    if (const int lost = LostPages(text))
        words += TransportBar::tr(" · %n page(s) lost", nullptr, lost);
    else if (difference >= 2 * player::tickLength) // nobody misses a single tick
        words += TransportBar::tr(" · %1 lost").arg(basics::SecondsText(difference));
    else if (difference <= -2 * player::tickLength)
        words += TransportBar::tr(" · stays %1 longer").arg(basics::SecondsText(-difference));
    return words;
}

void TransportBar::ShowEnds(const worker::TextTime* text, const QString& all)
{
    ends->setText(text ? EndsInWords(*text) : QString());
    ends->setToolTip(all);
    basics::SetInk(ends, text && LostPages(*text) > 0 ? basics::Warning(palette())
                                                      : basics::Quiet(palette()));
}

} // namespace AnimText::studio::window::time
