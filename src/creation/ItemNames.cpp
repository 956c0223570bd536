#include "creation/ItemNames.h"

#include "platform/base/NativePath.h"
#include "support/VTFileManager.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <cstring>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ItemNames)
};

const QString placeholder = QStringLiteral("template");
constexpr std::string_view placeholderBytes = "template";
/// Noncharacters of Unicode, which no name has.
constexpr QChar tokenMark(0xFDD0);
constexpr QChar projectMark(0xFDD1);

void forgetNames(platform::TreeFolder &folder)
{
    std::size_t end = 0;
    for (platform::TreeItem &item : folder.items) {
        item.newName = item.name;
        item.remark = static_cast<unsigned char>(ItemRemark::None);
        end = std::max(end, item.name + std::strlen(folder.nameOf(item)) + 1);
    }
    folder.names.resize(std::min(folder.names.size(), end)); // new names stand behind those that were read
}

QString problemOfName(const QString &name)
{
    if (name.isEmpty())
        return Text::tr("The name would be empty: its values are.");
    if (name == u"." || name == u"..")
        return Text::tr("The name would be “%1”, which leads elsewhere.").arg(name);
    const qsizetype size = platform::toNative(name).size();
    return size > platform::longestName ? Text::tr("The name would have %1 bytes, and 255 are possible.").arg(size)
                                        : QString();
}

/// A name with a mark in place of what is not to be looked through for the word template.
struct MarkedName
{
    QString text;
    QStringList parts; ///< one for each mark
    QString problem;
};

/// A mark that is the name's own stands for itself.
void addLiteral(const QString &literal, MarkedName &marked)
{
    for (const QChar character : literal) {
        const bool isMark = character == tokenMark || character == projectMark;
        marked.text += isMark ? tokenMark : character;
        if (isMark)
            marked.parts.append(QString(character));
    }
}

MarkedName markedName(const QString &name, const tokens::Values &values)
{
    const tokens::Pieces all = tokens::piecesOf(name);
    MarkedName marked{{}, {}, all.problem};
    for (const tokens::Piece &piece : all.pieces) {
        if (!piece.token) {
            addLiteral(piece.text, marked);
            continue;
        }
        const tokens::Filled part = tokens::valueOf(*piece.token, values);
        if (!part.ok())
            return {{}, {}, part.problem};
        if (part.text.contains(u'/') || part.text.contains(QChar(0)))
            return {{}, {}, Text::tr("%1 puts a “/” into the name: %2").arg(piece.token->source, part.text)};
        marked.text += tokenMark;
        marked.parts.append(part.text);
    }
    return marked;
}

} // namespace

/// Most names do not: no texts are made of them.
bool mentionsTemplate(std::string_view name)
{
    const auto isSame = [](char inName, char wanted) {
        return (inName | 0x20) == wanted; // the word is of small ASCII letters, and no other byte becomes one of these
    };
    return std::search(name.begin(), name.end(), placeholderBytes.begin(), placeholderBytes.end(), isSame) !=
           name.end();
}

void nameItem(platform::TreeFolder &folder, platform::TreeItem &item, const QString &projectName, NamesTaken &taken)
{
    const std::string own = folder.nameOf(item);
    const QString name = platform::fromNative(own);
    const QString inProject = nameInProject(name, projectName);
    const QByteArray wanted = platform::toNative(inProject);
    if (inProject == name)
        return;
    if (wanted.size() > platform::longestName) {
        item.remark = static_cast<unsigned char>(ItemRemark::NameTooLong);
    } else if (taken.contains(wanted.toStdString())) {
        item.remark = static_cast<unsigned char>(ItemRemark::NameTaken);
    } else {
        taken.erase(own);
        taken.insert(wanted.toStdString());
        folder.rename(item, wanted.toStdString());
    }
}

void nameItems(platform::TreeFolder &folder, const QString &projectName)
{
    forgetNames(folder);
    if (!mentionsTemplate(folder.names)) // a name's end is a null byte: no word goes across two names
        return;
    NamesTaken taken;
    for (const platform::TreeItem &item : folder.items)
        taken.insert(folder.nameOf(item));
    for (platform::TreeItem &item : folder.items) {
        if (mentionsTemplate(folder.nameOf(item)))
            nameItem(folder, item, projectName, taken);
    }
}

QString nameInProject(const QString &name, const QString &projectName)
{
    // "01. Template" has no extension: a blank is in none.
    const bool hasExtension = !platform::extensionOf(name).contains(u' ');
    if (!(hasExtension ? platform::withoutExtension(name) : name).toLower().contains(placeholder))
        return name;
    return QString(name).replace(placeholder, projectName, Qt::CaseInsensitive);
}

QString cleanedItemName(const QString &typed)
{
    static const QRegularExpression braces(QStringLiteral("\\{[^{}/]*\\}"));
    QStringList kept;
    QString marked = typed;
    for (auto match = braces.match(marked); match.hasMatch(); match = braces.match(marked)) {
        kept.append(match.captured());
        marked.replace(match.capturedStart(), match.capturedLength(), tokenMark);
    }
    QString cleaned;
    qsizetype next = 0;
    for (const QChar character : VTFileManager::validateFilename(marked))
        cleaned += character == tokenMark && next < kept.size() ? kept[next++] : QString(character);
    return cleaned;
}

tokens::Filled filledName(const QString &name, const QString &projectName, const tokens::Values &values)
{
    const MarkedName marked = markedName(name, values);
    if (!marked.problem.isNull())
        return {{}, marked.problem};
    QString result;
    qsizetype next = 0;
    for (const QChar character : nameInProject(marked.text, QString(projectMark))) {
        if (character == tokenMark)
            result += marked.parts[next++];
        else
            result += character == projectMark ? projectName : QString(character);
    }
    const QString problem = problemOfName(result);
    return problem.isNull() ? tokens::Filled{result} : tokens::Filled{{}, problem};
}
