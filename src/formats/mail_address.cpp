#include "formats/mail_address.h"

#include <algorithm>
#include <utility>

#include <QUrl>

using namespace Qt::StringLiterals;

namespace formats {

namespace {

constexpr int kMaxAddress = 254;
constexpr int kMaxLocalPart = 64;
constexpr int kMaxName = 200;

bool isControl(QChar c)
{
    return (c.category() == QChar::Other_Control && c != u'\t') || c == QChar::LineSeparator
        || c == QChar::ParagraphSeparator;
}

bool isAtomLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9')
        || QStringView(u"!#$%&'*+-/=?^_`{|}~").contains(c);
}

bool isLocalPart(QStringView text)
{
    return !text.isEmpty() && text.size() <= kMaxLocalPart && !text.startsWith(u'.') && !text.endsWith(u'.')
        && !text.contains(u"..")
        && std::all_of(text.begin(), text.end(), [](QChar c) { return c == u'.' || isAtomLetter(c); });
}

/// Empty when it is no domain.
QString asDomain(const QString& text)
{
    const QString domain = QString::fromLatin1(QUrl::toAce(text));
    const QStringList labels = domain.split(u'.');
    const bool good = std::all_of(labels.begin(), labels.end(), [](const QString& label) {
        return !label.isEmpty() && label.size() <= 63 && !label.startsWith(u'-') && !label.endsWith(u'-')
            && std::all_of(label.begin(), label.end(),
                [](QChar c) { return c == u'-' || (c.unicode() < 0x80 && c.isLetterOrNumber()); });
    });
    return good ? domain : QString();
}

QString asAddress(QStringView text)
{
    const qsizetype at = text.lastIndexOf(u'@');
    if (at < 0 || !isLocalPart(text.left(at)))
        return {};
    const QString domain = asDomain(text.mid(at + 1).toString());
    const QString address = text.left(at).toString() + u'@' + domain;
    return domain.isEmpty() || address.size() > kMaxAddress ? QString() : address;
}

QString unquoted(QStringView name)
{
    name = name.trimmed();
    if (name.size() < 2 || !name.startsWith(u'"') || !name.endsWith(u'"'))
        return name.toString().simplified();
    QString plain;
    for (qsizetype i = 1; i + 1 < name.size(); ++i) {
        if (name[i] == u'\\' && i + 2 < name.size())
            ++i;
        plain += name[i];
    }
    return plain.simplified();
}

struct Piece {
    QString text;
    bool endsAtComma = false;
};

std::vector<Piece> partedLine(QStringView line)
{
    // A quote or an angle that is never closed ends with its piece.
    const qsizetype lastQuote = line.lastIndexOf(u'"');
    const qsizetype lastClose = std::max(line.lastIndexOf(u'>'), line.lastIndexOf(u')'));
    std::vector<Piece> pieces(1);
    bool quoted = false;
    int depth = 0;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar c = line[i];
        const bool isOpen = (quoted && i < lastQuote) || (depth > 0 && i < lastClose);
        if ((c == u';' || c == u',') && !isOpen) {
            pieces.back().endsAtComma = c == u',';
            pieces.emplace_back();
            quoted = false;
            depth = 0;
            continue;
        }
        pieces.back().text += c;
        if (quoted && c == u'\\' && i + 1 < line.size())
            pieces.back().text += line[++i];
        else if (c == u'"')
            quoted = !quoted;
        else if (!quoted && (c == u'<' || c == u'('))
            ++depth;
        else if (!quoted && (c == u'>' || c == u')'))
            depth = std::max(0, depth - 1);
    }
    std::vector<Piece> filled;
    for (Piece& piece : pieces) {
        piece.text = piece.text.trimmed();
        if (!piece.text.isEmpty())
            filled.push_back(std::move(piece));
    }
    return filled;
}

} // namespace

QStringList addressPieces(QStringView line)
{
    QStringList texts;
    for (const Piece& piece : partedLine(line))
        texts << piece.text;
    return texts;
}

std::optional<Mailbox> readMailbox(QStringView piece)
{
    piece = piece.trimmed();
    if (std::any_of(piece.begin(), piece.end(), isControl))
        return std::nullopt;
    Mailbox mailbox;
    if (const qsizetype open = piece.lastIndexOf(u'<'); open >= 0 && piece.endsWith(u'>')) {
        mailbox.name = unquoted(piece.left(open));
        mailbox.address = asAddress(piece.mid(open + 1).chopped(1).trimmed());
    } else if (const qsizetype note = piece.indexOf(u'('); note > 0 && piece.endsWith(u')')) {
        mailbox.name = unquoted(piece.mid(note + 1).chopped(1));
        mailbox.address = asAddress(piece.left(note).trimmed());
    } else {
        mailbox.address = asAddress(piece);
    }
    mailbox.name.truncate(kMaxName);
    return mailbox.address.isEmpty() ? std::nullopt : std::optional(mailbox);
}

Mailboxes readMailboxes(QStringView line)
{
    Mailboxes read;
    QString before; // a piece that may be the first half of a name
    for (const Piece& piece : partedLine(line)) {
        std::optional<Mailbox> mailbox = readMailbox(piece.text);
        if (!before.isEmpty() && mailbox && !mailbox->name.isEmpty()) {
            mailbox->name = (before + u", "_s + mailbox->name).left(kMaxName);
            before.clear();
        }
        if (!before.isEmpty())
            read.wrong << std::exchange(before, QString());
        if (mailbox)
            read.good.push_back(*mailbox);
        else if (piece.endsAtComma && !piece.text.contains(u'@'))
            before = piece.text.simplified();
        else
            read.wrong << piece.text;
    }
    if (!before.isEmpty())
        read.wrong << before;
    return read;
}

QString writtenMailbox(const Mailbox& mailbox)
{
    if (mailbox.name.isEmpty())
        return mailbox.address;
    QString name = mailbox.name;
    name.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
    const bool isPlain = std::all_of(
        mailbox.name.begin(), mailbox.name.end(), [](QChar c) { return c.isLetterOrNumber() || c == u' '; });
    return (isPlain ? name : u'"' + name + u'"') + u" <"_s + mailbox.address + u'>';
}

} // namespace formats
