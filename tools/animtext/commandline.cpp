#include "animtext/commandline.h"

#include <cstdio>

namespace AnimText {

namespace {

void Complain(const QString& message)
{
    const QByteArray line = "animtext: " + message.toUtf8() + '\n';
    std::fwrite(line.constData(), 1, size_t(line.size()), stderr);
}

} // namespace

int Fail(Status status, const QString& message)
{
    Complain(message);
    return status;
}

void Warn(const QString& message)
{
    Complain(message);
}

bool Print(const QByteArray& text)
{
    const size_t size = size_t(text.size());
    return std::fwrite(text.constData(), 1, size, stdout) == size;
}

QString RightAligned(const QString& text, int width)
{
    return text.rightJustified(width, QLatin1Char(' '));
}

CommandLine::CommandLine(const QString& command, const QString& arguments,
                         const QString& description)
    : command(command)
    , arguments(arguments)
{
    parser.setApplicationDescription(description);
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsOptions);
    parser.addOption(
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this help.")});
}

void CommandLine::AddOption(const QStringList& names, const QString& description,
                            const QString& value, const QString& standard)
{
    QCommandLineOption option(names, description);
    option.setValueName(value);
    if (!standard.isEmpty())
        option.setDefaultValue(standard);
    parser.addOption(option);
}

QString CommandLine::HelpText() const
{
    // Qt's text begins with a usage line that knows no commands.
    const QString text = parser.helpText();
    return QStringLiteral("Usage: animtext %1 [options] %2").arg(command, arguments).trimmed() +
           text.mid(text.indexOf(QLatin1Char('\n')));
}

bool CommandLine::Parse(const QStringList& words, int least, int most)
{
    if (!parser.parse(QStringList(command) + words)) {
        status = BadInput;
        Misused(parser.errorText());
        return false;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        status = Print(HelpText().toUtf8()) ? Done : FailedRun;
        return false;
    }
    const int given = Arguments().size();
    if (given >= least && given <= most)
        return true;
    status = BadInput;
    if (given < least)
        Misused(QStringLiteral("expected %1").arg(arguments));
    else
        Misused(QStringLiteral("\"%1\" is one word too many").arg(Arguments().at(most)));
    return false;
}

bool CommandLine::Number(const QString& option, int least, int most, int* number)
{
    bool isNumber = false;
    const int value = Value(option).toInt(&isNumber);
    if (!isNumber || value < least || value > most) {
        Misused(QStringLiteral("--%1 takes a whole number from %2 to %3, not \"%4\"")
                    .arg(option)
                    .arg(least)
                    .arg(most)
                    .arg(Value(option)));
        return false;
    }
    *number = value;
    return true;
}

int CommandLine::Misused(const QString& message)
{
    return Fail(BadInput, QStringLiteral("%1 (see animtext %2 --help)").arg(message, command));
}

} // namespace AnimText
