#include "cli/help.h"

#include "cli/output.h"

namespace AnimText::cli {

namespace {

QStringList OptionWords(const Option& option)
{
    QStringList names{"--" + QLatin1String(option.name)};
    if (option.letter)
        names.append(ShortestName(option));
    return names;
}

QString ForBash(const QVector<Command>& commands)
{
    QStringList names;
    QString values;
    QString words;
    for (const Command& command : commands) {
        const QString name = command.name;
        names.append(name);
        QStringList options;
        for (const Option& option : command.options) {
            const QStringList own = OptionWords(option);
            options += own;
            const QString offer =
                option.kind == Kind::File ? "-f" : "-W " + Quoted(option.choices.join(' '));
            if (option.kind != Kind::Flag)
                values += QStringLiteral("        %1:%2) mapfile -t COMPREPLY < <(compgen %3 -- "
                                         "\"$current\"); return ;;\n")
                              .arg(name, own.join("|" + name + ':'), offer);
        }
        const QString line = "        " + name + ":%1*) words=%2 ;;\n";
        words += line.arg("-", Quoted(options.join(' ')));
        if (!command.arguments.words.isEmpty())
            words += line.arg("", Quoted(command.arguments.words.join(' ')));
    }
    return QString(R"(# bash completion for animtext: source <(animtext completion bash)
_animtext() {
    local current=${COMP_WORDS[COMP_CWORD]} words=
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W '@commands@ --help --version' -- "$current")
        return
    fi
    case ${COMP_WORDS[1]}:${COMP_WORDS[COMP_CWORD - 1]} in
@values@    esac
    case ${COMP_WORDS[1]}:$current in
@words@        *) mapfile -t COMPREPLY < <(compgen -f -- "$current"); return ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}
complete -o filenames -F _animtext animtext
)")
        .replace("@commands@", names.join(' '))
        .replace("@values@", values)
        .replace("@words@", words);
}

QString ForZsh(const QVector<Command>& commands)
{
    // Colons and brackets end a description.
    const auto plain = [](QString text) {
        return text.replace("[", "\\[").replace("]", "\\]").replace(":", "\\:");
    };
    const auto offer = [](const QStringList& words, const QString& otherwise) {
        return words.isEmpty() ? otherwise : '(' + words.join(' ') + ')';
    };
    const QString start = " \\\n            ";
    QString summaries;
    QString cases;
    for (const Command& command : commands) {
        summaries += "        " + Quoted(plain(command.name) + ':' + command.summary) + '\n';
        cases += QStringLiteral("        %1) _arguments").arg(command.name);
        for (const Option& option : command.options) {
            const bool isFlag = option.kind == Kind::Flag;
            QString text = '[' + plain(option.help) + ']';
            if (!isFlag)
                text += (option.alone ? "::" : ":") + plain(option.value) + ':' +
                        offer(option.choices, option.kind == Kind::File ? "_files" : " ");
            for (const QString& name : OptionWords(option))
                cases += start + Quoted(name +
                                        (isFlag                  ? ""
                                         : name.startsWith("--") ? "="
                                                                 : "+") +
                                        text);
        }
        cases += start +
                 Quoted("*:" + plain(command.arguments.shown) + ':' +
                        offer(command.arguments.words, "_files")) +
                 " ;;\n";
    }
    return QString(R"(#compdef animtext
# zsh completion for animtext: animtext completion zsh >_animtext, in your $fpath
_animtext() {
    local -a commands=(
@summaries@    )
    if ((CURRENT == 2)); then
        _describe command commands
        return
    fi
    local command=$words[2]
    shift words
    ((CURRENT--))
    case $command in
@cases@    esac
}
compdef _animtext animtext
)")
        .replace("@summaries@", summaries)
        .replace("@cases@", cases);
}

QString ForFish(const QVector<Command>& commands)
{
    // In fish, only \' and \\ are special inside quotes.
    const auto quoted = [](QString text) {
        return '\'' + text.replace("\\", "\\\\").replace("'", "\\'") + '\'';
    };
    QString text = "# fish completion for animtext: animtext completion fish | source\n";
    for (const Command& command : commands) {
        text += QStringLiteral("complete -c animtext -f -n __fish_use_subcommand -a %1 -d %2\n")
                    .arg(command.name, quoted(command.summary));
        const QString here =
            QStringLiteral("complete -c animtext -n '__fish_seen_subcommand_from %1' ")
                .arg(command.name);
        for (const Option& option : command.options) {
            text += here + "-l " + option.name;
            if (option.letter)
                text += " -s " + QString(QLatin1Char(option.letter));
            if (option.kind != Kind::Flag)
                text += option.kind == Kind::File ? " -r -F" : " -x";
            if (!option.choices.isEmpty())
                text += " -a " + quoted(option.choices.join(' '));
            text += " -d " + quoted(option.help) + '\n';
        }
        if (!command.arguments.words.isEmpty())
            text += here + "-f -a " + quoted(command.arguments.words.join(' ')) + '\n';
    }
    return text;
}

} // namespace

QString Quoted(QString word)
{
    return QLatin1Char('\'') + word.replace(QLatin1Char('\''), "'\\''") + QLatin1Char('\'');
}

QByteArray Completion(const QString& shell, const QVector<Command>& commands)
{
    if (shell == "bash")
        return ForBash(commands).toUtf8();
    if (shell == "zsh")
        return ForZsh(commands).toUtf8();
    if (shell == "fish")
        return ForFish(commands).toUtf8();
    throw Misuse{QStringLiteral("unknown shell \"%1\"; expected bash, zsh or fish").arg(shell)};
}

} // namespace AnimText::cli
