// completion: what makes the shells complete Tessaro's words, from the table of verbs; and the words that they ask for.
#include "commands/CommandLine.h"
#include "commands/Commands.h"
#include "commands/TerminalOutput.h"
#include "parameters/ParameterStore.h"
#include "templates/VTDataController.h"

#include <QCoreApplication>
#include <QMap>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Commands)
};

QString quoted(QString text)
{
    return u'\'' + text.replace(u'\'', QStringLiteral("'\\''")) + u'\'';
}

/// The verbs' words by what stands before them: "" gives the first words, "template" those behind it.
QMap<QString, QStringList> nextWords()
{
    QMap<QString, QStringList> next;
    for (const Verb &verb : verbs()) {
        if (!verb.help && !verb.name().startsWith(u'-'))
            continue;
        QString before;
        for (const QString &word : verb.name().split(u' ')) {
            if (!next[before].contains(word))
                next[before].append(word);
            before = before.isEmpty() ? word : before + u' ' + word;
        }
        for (const Option &option : verb.options)
            next[verb.name()].append(QLatin1String(option.name));
    }
    return next;
}

/// The shell's own function that offers such words.
QString functionFor(Completes completes)
{
    switch (completes) {
    case Completes::Nothing:
        break;
    case Completes::File:
        return QStringLiteral("_tessaro_files");
    case Completes::Folder:
        return QStringLiteral("_tessaro_folders");
    case Completes::Template:
        return QStringLiteral("_tessaro_offer templates");
    case Completes::Title:
        return QStringLiteral("_tessaro_offer titles");
    case Completes::Value:
        return QStringLiteral("_tessaro_value");
    }
    return {};
}

/// By verb and option: what follows it.
QMap<QString, QString> optionFunctions()
{
    QMap<QString, QString> found;
    for (const Verb &verb : verbs()) {
        for (const Option &option : verb.options) {
            const QString function = functionFor(option.completes);
            if (!function.isEmpty())
                found.insert(verb.name() + u' ' + QLatin1String(option.name), function);
        }
    }
    return found;
}

/// The cases of what follows an option and a verb, as both shells write them.
QString cases(const QString &wordList)
{
    QString script = QStringLiteral("    case \"$verb $previous\" in\n");
    const auto options = optionFunctions();
    for (auto option = options.cbegin(); option != options.cend(); ++option)
        script += QStringLiteral("    %1) %2; return ;;\n").arg(quoted(option.key()), option.value());
    script += QStringLiteral("    esac\n    case $verb in\n");
    const auto next = nextWords();
    for (auto words = next.cbegin(); words != next.cend(); ++words) {
        QString own;
        for (const Verb &verb : verbs()) {
            if (verb.name() == words.key() && !functionFor(verb.completes).isEmpty())
                own = QStringLiteral("; [[ $current == -* ]] || ") + functionFor(verb.completes);
        }
        script += QStringLiteral("    %1) %2%3 ;;\n")
                      .arg(words.key().isEmpty() ? QStringLiteral("''") : quoted(words.key()),
                           wordList.arg(words.value().join(u' ')), own);
    }
    for (const Verb &verb : verbs()) {
        if (!next.contains(verb.name()) && !functionFor(verb.completes).isEmpty())
            script += QStringLiteral("    %1) %2 ;;\n").arg(quoted(verb.name()), functionFor(verb.completes));
    }
    return script + QStringLiteral("    esac\n");
}

QString bashCompletion()
{
    return QStringLiteral(R"sh(# Completion of Tessaro for bash. Made by: Tessaro completion bash
_tessaro_plain() { # what stands on the line, without the marks that the shell needs
    local word=$1
    word=${word#[\"\']}
    printf '%s' "${word//\\/}"
}
_tessaro_marked() { # the word as it has to stand on the line: bare, or behind the quote that is open
    local word=$1 character
    case $current in
    \'*) printf '%s' "${word//\'/\'\\\'\'}" ;;
    \"*)
        for character in '\' '"' '$' '`'; do word=${word//"$character"/"\\$character"}; done
        printf '%s' "$word"
        ;;
    *) printf %q "$word" ;;
    esac
}
_tessaro_offer() { # templates | titles | values TITLE
    local line wanted
    wanted=$(_tessaro_plain "$current")
    while IFS= read -r line; do
        [[ $line == "$wanted"* ]] && COMPREPLY+=("$(_tessaro_marked "$line")")
    done < <("${COMP_WORDS[0]}" complete "$@" 2>/dev/null)
}
_tessaro_value() { # TITLE, then = and its value: the shell takes the = for a word of its own
    compopt -o nospace
    _tessaro_offer titles
    COMPREPLY=("${COMPREPLY[@]/%/=}")
}
_tessaro_files() { compopt -o filenames; mapfile -t COMPREPLY < <(compgen -f -- "$current"); }
_tessaro_folders() { compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- "$current"); }
_tessaro() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]} verb=
    COMPREPLY=()
    if [[ $current == = || $previous == = ]]; then
        local at=$((COMP_CWORD - 1))
        [[ $current == = ]] && current= || at=$((COMP_CWORD - 2))
        [[ ${COMP_WORDS[at-1]} == --set ]] && _tessaro_offer values "$(_tessaro_plain "${COMP_WORDS[at]}")"
        return
    fi
    [ "$COMP_CWORD" -gt 1 ] && verb=${COMP_WORDS[1]}
    case " template parameters settings setup logs updates " in
    *" $verb "*) [[ $COMP_CWORD -gt 2 && ${COMP_WORDS[2]} != -* ]] && verb+=" ${COMP_WORDS[2]}" ;;
    esac
)sh") + cases(QStringLiteral("mapfile -t COMPREPLY < <(compgen -W '%1' -- \"$current\")")) +
           QStringLiteral("}\n"
                          "complete -F _tessaro Tessaro tessaro\n");
}

QString zshCompletion()
{
    return QStringLiteral(R"sh(#compdef Tessaro tessaro
# Completion of Tessaro for zsh. Made by: Tessaro completion zsh
_tessaro_offer() { # templates | titles | values TITLE
    local -a offered
    offered=("${(@f)$("${words[1]}" complete "$@" 2>/dev/null)}")
    (( ${#offered[1]} )) && compadd -a offered
}
_tessaro_value() { # TITLE=VALUE
    if compset -P '*='; then
        _tessaro_offer values "${(Q)${IPREFIX%=}}"
    else
        local -a offered
        offered=("${(@f)$("${words[1]}" complete titles 2>/dev/null)}")
        (( ${#offered[1]} )) && compadd -S = -a offered
    fi
}
_tessaro_files() { _files }
_tessaro_folders() { _files -/ }
_tessaro() {
    local current=${words[CURRENT]} previous=${words[CURRENT-1]} verb=
    (( CURRENT > 2 )) && verb=${words[2]}
    case " template parameters settings setup logs updates " in
    *" $verb "*) [[ $CURRENT -gt 3 && ${words[3]} != -* ]] && verb+=" ${words[3]}" ;;
    esac
)sh") + cases(QStringLiteral("compadd -- %1")) +
           QStringLiteral("}\n"
                          "_tessaro \"$@\"\n");
}

QString fishWords(Completes completes, const QString &program)
{
    switch (completes) {
    case Completes::Template:
        return QStringLiteral(" -x -a '(%1 complete templates)'").arg(program);
    case Completes::Title:
        return QStringLiteral(" -x -a '(%1 complete titles)'").arg(program);
    case Completes::Value:
        return QStringLiteral(" -x -a '(%1 complete titles | string replace -r \"(.+)\" \"\\$1=\")'").arg(program);
    case Completes::Folder:
        return QStringLiteral(" -x -a '(__fish_complete_directories)'");
    case Completes::File:
        return QStringLiteral(" -r -F");
    case Completes::Nothing:
        break;
    }
    return {};
} // namespace

QString fishCompletion()
{
    QString script = QStringLiteral("# Completion of Tessaro for fish. Made by: Tessaro completion fish\n");
    for (const char *program : {"Tessaro", "tessaro"}) {
        const QString name = QLatin1String(program);
        for (const Verb &verb : verbs()) {
            if (!verb.help)
                continue;
            const QStringList words = verb.name().split(u' ');
            const QString seen = words.size() == 1 ? QStringLiteral("__fish_use_subcommand")
                                                   : QStringLiteral("__fish_seen_subcommand_from ") + words[0];
            const QString behind = quoted(QStringLiteral("__fish_seen_subcommand_from ") + words.constLast());
            script += QStringLiteral("complete -c %1 -n %2 -a %3 -d %4\n")
                          .arg(name, quoted(seen), quoted(words.constLast()), quoted(Text::tr(verb.help)));
            if (verb.completes == Completes::Template || verb.completes == Completes::Title)
                script += QStringLiteral("complete -c %1 -n %2%3\n").arg(name, behind, fishWords(verb.completes, name));
            for (const Option &option : verb.options) {
                const QString own = fishWords(option.completes, name);
                const QString takes = own.isEmpty() && option.argument ? QStringLiteral(" -x") : own;
                script +=
                    QStringLiteral("complete -c %1 -n %2 -l %3%4 -d %5\n")
                        .arg(name, behind, QLatin1String(option.name).mid(2), takes, quoted(Text::tr(option.help)));
            }
        }
    }
    return script;
}

} // namespace

int commands::printWords(const Invocation &invocation)
{
    const QString what = invocation.argument(0);
    QStringList words;
    if (what == u"templates") {
        words = VTDataController::templateNames(VTDataController::templateLocation()).valueOr({});
    } else {
        for (const FilenameParameter &parameter : currentParameters()) {
            if (what == u"titles" && !parameter.isLocked())
                words.append(parameter.title());
            else if (what == u"values" && parameter.title() == invocation.argument(1))
                words = parameter.choices().isEmpty() ? parameter.history() : parameter.choices();
        }
    }
    for (const QString &word : words) {
        if (!word.contains(u'\n'))
            print(word + u'\n');
    }
    return ExitStatus::done;
}

int commands::printCompletion(const Invocation &invocation)
{
    const QHash<QString, QString (*)()> shells{
        {"bash", bashCompletion}, {"zsh", zshCompletion}, {"fish", fishCompletion}};
    const auto shell = shells.constFind(invocation.argument(0));
    if (shell == shells.cend())
        return complain(ExitStatus::wrongUsage, Text::tr("There is completion for bash, zsh and fish."));
    print((*shell)());
    return ExitStatus::done;
}
