#include "cli/help.h"

namespace AnimText::cli {

namespace {

QByteArray Joined(const QStringList& words)
{
    return words.join(QLatin1Char(' ')).toUtf8();
}

QStringList OptionWords(const Option& option)
{
    QStringList names{"--" + QLatin1String(option.name)};
    if (option.letter)
        names.append(ShortestName(option));
    return names;
}

/** In single quotes for bash and zsh. */
QByteArray Quoted(QByteArray text)
{
    return '\'' + text.replace("'", "'\\''") + '\'';
}

} // namespace

QByteArray CompletionForBash(const QVector<Command>& commands)
{
    QStringList commandNames;
    QByteArray values;
    QByteArray words;
    for (const Command& command : commands) {
        const QByteArray name = command.name;
        commandNames.append(name);
        QStringList options;
        for (const Option& option : command.options) {
            const QStringList own = OptionWords(option);
            options += own;
            if (option.kind == Kind::Flag)
                continue;
            const QByteArray offer = option.kind == Kind::File
                                         ? "compgen -f"
                                         : "compgen -W " + Quoted(Joined(option.choices));
            values += "        " + name + ':' + own.join("|" + name + ':').toUtf8() +
                      ") mapfile -t COMPREPLY < <(" + offer + " -- \"$current\"); return ;;\n";
        }
        words += "        " + name + ":-*) words=" + Quoted(Joined(options)) + " ;;\n";
        if (!command.arguments.words.isEmpty())
            words += "        " + name + ":*) words=" + Quoted(Joined(command.arguments.words)) +
                     " ;;\n";
    }
    return QByteArray(R"(# bash completion for animtext: source <(animtext completion bash)
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
        .replace("@commands@", Joined(commandNames))
        .replace("@values@", values)
        .replace("@words@", words);
}

QByteArray CompletionForZsh(const QVector<Command>& commands)
{
    // Colons and brackets end a description.
    const auto plain = [](QByteArray text) {
        return text.replace("[", "\\[").replace("]", "\\]").replace(":", "\\:");
    };
    const auto offer = [](const QStringList& words) { return '(' + Joined(words) + ')'; };
    QByteArray summaries;
    QByteArray cases;
    for (const Command& command : commands) {
        summaries += "        " + Quoted(plain(command.name) + ':' + command.summary) + '\n';
        cases += "        " + QByteArray(command.name) + ") _arguments";
        for (const Option& option : command.options) {
            const bool isFlag = option.kind == Kind::Flag;
            QByteArray action = option.choices.isEmpty() ? " " : offer(option.choices);
            if (option.kind == Kind::File)
                action = "_files";
            QByteArray text = '[' + plain(option.help) + ']';
            if (!isFlag)
                text += (option.alone ? "::" : ":") + plain(option.value) + ':' + action;
            for (const QString& name : OptionWords(option)) {
                const char* const join = isFlag ? "" : name.startsWith("--") ? "=" : "+";
                cases += " \\\n            " + Quoted(name.toUtf8() + join + text);
            }
        }
        const QByteArray rest =
            command.arguments.words.isEmpty() ? "_files" : offer(command.arguments.words);
        cases += " \\\n            " + Quoted("*:" + plain(command.arguments.shown) + ':' + rest) +
                 " ;;\n";
    }
    return QByteArray(R"(#compdef animtext
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

QByteArray CompletionForFish(const QVector<Command>& commands)
{
    // In fish, only \' and \\ are special inside quotes.
    const auto quoted = [](QByteArray text) {
        return '\'' + text.replace("\\", "\\\\").replace("'", "\\'") + '\'';
    };
    QByteArray text = "# fish completion for animtext: animtext completion fish | source\n";
    for (const Command& command : commands) {
        const QByteArray name = command.name;
        text += "complete -c animtext -f -n __fish_use_subcommand -a " + name + " -d " +
                quoted(command.summary) + '\n';
        const QByteArray here =
            "complete -c animtext -n '__fish_seen_subcommand_from " + name + "' ";
        for (const Option& option : command.options) {
            text += here + "-l " + option.name;
            if (option.letter)
                text += QByteArray(" -s ") + option.letter;
            if (option.kind != Kind::Flag)
                text += option.kind == Kind::File ? " -r -F" : " -x";
            if (!option.choices.isEmpty())
                text += " -a " + quoted(Joined(option.choices));
            text += " -d " + quoted(option.help) + '\n';
        }
        if (!command.arguments.words.isEmpty())
            text += here + "-f -a " + quoted(Joined(command.arguments.words)) + '\n';
    }
    return text;
}

} // namespace AnimText::cli
