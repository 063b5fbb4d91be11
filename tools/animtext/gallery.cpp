#include "gallery/gallery.h"

#include "animtext/commands.h"
#include "animtext/shared/authoroptions.h"
#include "animtext/shared/playoptions.h"
#include "cli/help.h"
#include "cli/interruption.h"
#include "cli/progress.h"

#include <QMap>

namespace AnimText::animtext {

namespace {

// The options of `animtext author` that suit every motion.
const QStringList textOptions{"text",      "font",  "size",   "bold", "italic",
                              "underline", "color", "hollow", "hold", "area"};

bool IsTextOption(const Option& option)
{
    return textOptions.contains(option.name);
}

/** The options of `animtext author` for the same text, as typed. */
QString WordsOf(const cli::Command& command, const cli::CommandLine& line)
{
    QStringList words;
    for (const Option& option : command.options) {
        if (!IsTextOption(option) || !(line.IsSet(option.name) || option.standard))
            continue;
        words.append("--" + QLatin1String(option.name));
        if (option.kind != cli::Kind::Flag)
            words.append(cli::Quoted(line.Value(option.name)));
    }
    return words.join(QLatin1Char(' '));
}

void MakeGallery(const cli::CommandLine& line)
{
    gallery::GalleryOptions options;
    options.words = WordsOf(GalleryCommand(), line);
    options.folder = line.Value("output");
    options.node = shared::ReadLook(line);
    options.node.attributes["PlayTimes"] = 1;
    author::WrittenText typed = shared::ReadWritten(line);
    typed.words = line.Value("text");
    QString error;
    QStringList notes;
    if (!author::ReadText(typed, &options.text, &notes, &error))
        throw cli::Misuse{error};
    for (const QString& note : notes)
        cli::Warn(note);
    options.seed = shared::SeedOf(line);

    cli::WatchForInterruption();
    player::Player player(player::VirtualDispatcher::Current(), shared::PluginOf(line));
    cli::Progress progress;
    const auto watch = [&](int done, int all) {
        progress.Show("playing", done, all);
        cli::StopIfInterrupted();
    };
    const qint64 bytes = gallery::WriteGallery(options, &player, watch);
    progress.Wipe();
    cli::Print(QStringLiteral("Wrote %1/index.html, %2 MB\n")
                   .arg(options.folder)
                   .arg(double(bytes) / 1e6, 0, 'f', 1)
                   .toUtf8());
}

} // namespace

cli::Command GalleryCommand()
{
    QVector<Option> own{Option::File("output", "DIR", "Folder to write.").Letter('o').Required()};
    const QMap<QString, const char*> standards{
        {"text", "Welcome aboard!"}, {"area", "240x48"}, {"hold", "1s"}};
    for (Option option : shared::LayoutOptions()) {
        if (IsTextOption(option))
            own.append(option.Or(standards.value(option.name, option.standard)));
    }
    return {"gallery",
            "make a web page that shows every motion",
            {},
            "Plays a text with every motion at every speed and writes a web page that shows them. "
            "Open index.html in any browser; the page works without a server or a network.",
            shared::WithPlayOptions(own),
            MakeGallery,
            {"animtext gallery -o gallery",
             "animtext gallery --text \"Platform 4\" --area 96x24 -o gallery"}};
}

} // namespace AnimText::animtext
