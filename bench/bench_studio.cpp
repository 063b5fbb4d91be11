// What the studio's window takes: from a change to the picture, an event, and the start.
#include "studio/window/shell/mainwindow.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <unistd.h>

using namespace AnimText;

namespace {

/** Of this thread, in milliseconds: what others do on a busy machine does not count. */
double ProcessorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

/** Of this process and of those that it has started, in milliseconds. */
double AllProcessorTime()
{
    double all = studio::worker::ProcessorTimeOf(getpid());
    const QDir tasks("/proc/self/task");
    for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile children(tasks.filePath(task + "/children"));
        if (!children.open(QIODevice::ReadOnly))
            continue;
        for (const QByteArray& child : children.readAll().simplified().split(' ')) {
            if (!child.isEmpty())
                all += studio::worker::ProcessorTimeOf(child.toInt());
        }
    }
    return 1e3 * all;
}

/** The longest that one event has kept the window, in milliseconds. */
class TimedApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        const bool isOuter = depth++ == 0 && receiver->thread() == thread();
        const int type = event->type();
        const char* name = receiver->metaObject()->className();
        const double before = ProcessorTime();
        const bool answer = QApplication::notify(receiver, event);
        const double took = ProcessorTime() - before;
        --depth;
        if (isOuter)
            took_.push_back(took);
        if (isOuter && took > longest) {
            longest = took;
            what = QStringLiteral("%1, event %2").arg(QLatin1String(name)).arg(type);
        }
        return answer;
    }
    void Reset()
    {
        longest = 0;
        took_.clear();
    }
    double Share(double part)
    {
        std::sort(took_.begin(), took_.end());
        return took_.empty() ? 0 : took_[size_t(double(took_.size() - 1) * part)];
    }

    double longest = 0;
    QString what;
    std::vector<double> took_;

private:
    int depth = 0;
};

template <typename Condition>
double WaitFor(const Condition& isTrue)
{
    QElapsedTimer clock;
    clock.start();
    while (!isTrue() && clock.elapsed() < 60000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return double(clock.nsecsElapsed()) / 1e6;
}

} // namespace

int main(int argc, char** argv)
{
    QElapsedTimer start;
    start.start();
    TimedApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName("animtext-studio-bench");
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    studio::worker::WorkerLink::SetProgram(QCoreApplication::applicationDirPath() +
                                           "/animtext-studio");
    studio::window::shell::MainWindow window((QString()));
    window.New();
    window.show();
    studio::model::Document* document = window.GetDocument();
    studio::worker::Rehearsal* rehearsal = window.GetRehearsal();
    const auto shown = [&] { return document->Current().IsLaidOut() && rehearsal->IsCurrent(); };
    const auto settled = [&] { return shown() && rehearsal->IsMeasured(); };
    WaitFor([&] { return window.isVisible() && shown(); });
    std::printf("start to the first picture      %7.1f ms (%.1f ms of work)\n",
                double(start.nsecsElapsed()) / 1e6, AllProcessorTime());

    const QString forty = "Mind the gap between train and platform.";
    std::vector<double> latencies;
    std::vector<double> works; // of all processes; what would be waited for if they worked in turn
    WaitFor(settled);
    application.Reset();
    for (int i = 0; i < 40; ++i) {
        studio::model::Sign sign = document->Current();
        sign.texts.first().source.text.text =
            forty.left(39) + QChar(QLatin1Char('a').unicode() + i % 26);
        sign.texts.first().node.attributes["AnimationEffect"] = i % 30;
        window.GetPlayback()->Seek(20);
        const double before = AllProcessorTime();
        document->Change("Text", sign);
        latencies.push_back(WaitFor(shown));
        works.push_back(AllProcessorTime() - before);
        WaitFor(settled);
    }
    std::sort(latencies.begin(), latencies.end());
    std::sort(works.begin(), works.end());
    std::printf("change to picture, 40 letters at %d x %d, tick %d\n"
                "                    median      %7.1f ms (%.1f ms of work in all processes)\n"
                "                    longest     %7.1f ms (%.1f ms of work)\n",
                document->Current().display.width(), document->Current().display.height(),
                window.GetPlayback()->Tick(), latencies[latencies.size() / 2],
                works[works.size() / 2], latencies.back(), works.back());
    std::printf("an event of the window, 99.9 %%  %7.1f ms\n", application.Share(0.999));
    std::printf("                    longest     %7.1f ms (%s)\n", application.longest,
                qPrintable(application.what));
    application.Reset();
    int ticks = 0;
    QObject::connect(window.GetPlayback(), &studio::window::time::Playback::TickChanged,
                     [&] { ++ticks; });
    window.GetPlayback()->SetPace(1);
    QElapsedTimer playing;
    playing.start();
    WaitFor([&] { return playing.elapsed() > 5000; });
    std::printf("playing for 5 s, longest event  %7.1f ms (%s; %d of 75 ticks)\n",
                application.longest, qPrintable(application.what), ticks);
    return 0;
}
