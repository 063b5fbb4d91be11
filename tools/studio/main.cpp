// The studio's window or, with --worker, one of its helper processes.
#include "studio/window/basics/translating.h"
#include "studio/window/shell/mainwindow.h"
#include "studio/worker/workermain.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>

#include <cstdio>

using namespace AnimText;

namespace {

/** Whether windows can be shown; otherwise prints what to do. */
bool HasDisplay()
{
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (!qEnvironmentVariableIsEmpty(name))
            return true;
    }
    std::fputs("animtext-studio: no display: neither DISPLAY nor WAYLAND_DISPLAY is set.\n"
               "Run it in a desktop session, over ssh -X, or with:\n"
               "  xvfb-run animtext-studio\n"
               "animtext authors, renders and checks scenes without a display.\n",
               stderr);
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    const QByteArray word = argc > 1 ? argv[1] : "";
    if (word == "--worker")
        return studio::worker::WorkerMain(argc, argv);
    if (word == "--help" || word == "-h" || word == "--version" || word == "-v")
        qputenv("QT_QPA_PLATFORM", "offscreen");
    else if (!HasDisplay())
        return 1;
#if QT_VERSION < 0x060000 // always on since Qt 6
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    // QApplication would take --plugin for its own option.
    QStringList words;
    for (int i = 0; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    int ownName = 1;
    QApplication application(ownName, argv);
    QApplication::setApplicationName("animtext-studio");
    QApplication::setOrganizationName("animtext");
    QApplication::setApplicationVersion(QStringLiteral(ANIMTEXT_VERSION));

    studio::window::basics::Translate(QLocale());

    QCommandLineParser parser;
    parser.setApplicationDescription(QCoreApplication::translate(
        "Studio", "Designs, previews, and exports animated texts for LED signs."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({"plugin",
                      QCoreApplication::translate(
                          "Studio", "Plugin library. Default: the one beside this program."),
                      "FILE"});
    parser.addPositionalArgument("scene", QCoreApplication::translate("Studio", "Scene to open."),
                                 "[SCENE.json]");
    parser.process(words);

    studio::window::shell::MainWindow window(parser.value("plugin"));
    const QStringList scenes = parser.positionalArguments();
    if (scenes.isEmpty() || !window.Open(scenes.first()))
        window.New();
    window.OfferLostWork();
    window.show();
    window.GetPlayback()->SetPace(1);
    return QApplication::exec();
}
