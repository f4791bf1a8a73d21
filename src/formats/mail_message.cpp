#include "formats/mail_message.h"

#include <algorithm>
#include <memory>
#include <mutex>
#include <utility>

#include <QTimeZone>
#include <QUuid>

#include <gmime/gmime.h>

using namespace Qt::StringLiterals;

namespace formats {

namespace {

constexpr int kMaxSubject = 900;
constexpr int kMaxParts = 1000;
constexpr int kMaxDepth = 20;
constexpr qint64 kMaxTextBytes = 16 * 1024 * 1024;

struct Unref {
    void operator()(void* object) const { g_object_unref(object); }
};
template <class Object> using Ref = std::unique_ptr<Object, Unref>;

template <class Object> Ref<Object> owned(Object* object)
{
    return Ref<Object>(object);
}

void startLibrary()
{
    static std::once_flag once;
    std::call_once(once, g_mime_init);
}

QString fromText(const char* text)
{
    return text ? QString::fromUtf8(text) : QString();
}

/// What no header and no text may hold: control characters, halves of a character.
QString clean(const QString& text, bool isOneLine)
{
    QString kept;
    kept.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            kept += c;
            kept += text[++i];
        } else if (c.isSurrogate()) {
            kept += QChar(QChar::ReplacementCharacter);
        } else if (c == u'\r' || c == u'\n') {
            if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n')
                ++i;
            kept += isOneLine ? u' ' : u'\n';
        } else if (c == u'\t' || c.category() != QChar::Other_Control) {
            kept += c;
        } else if (isOneLine) {
            kept += u' ';
        }
    }
    return kept;
}

/// A text of a header on one line. One that looks as if it were encoded is encoded, or readers would take it
/// for what it hides.
QByteArray headerText(const QString& text)
{
    const QString line = clean(text, true);
    if (!line.contains(u"=?"))
        return line.toUtf8();
    constexpr qsizetype kPiece = 40;
    QByteArrayList words;
    QByteArray piece;
    for (const char32_t letter : line.toUcs4()) {
        const QByteArray bytes = QString::fromUcs4(&letter, 1).toUtf8();
        if (piece.size() + bytes.size() > kPiece)
            words << "=?utf-8?B?" + std::exchange(piece, {}).toBase64() + "?=";
        piece += bytes;
    }
    words << "=?utf-8?B?" + piece.toBase64() + "?=";
    return words.join(' ');
}

/// The date with the offset that it has for the person who writes.
void setDate(GMimeMessage* message, const QDateTime& date)
{
    GTimeZone* zone = g_time_zone_new_offset(date.offsetFromUtc());
    const QDate day = date.date();
    const QTime time = date.time();
    GDateTime* stamp = g_date_time_new(
        zone, day.year(), day.month(), day.day(), time.hour(), time.minute(), time.second());
    if (stamp) {
        g_mime_message_set_date(message, stamp);
        g_date_time_unref(stamp);
    }
    g_time_zone_unref(zone);
}

void addMailboxes(GMimeMessage* message, GMimeAddressType type, const std::vector<Mailbox>& mailboxes)
{
    for (const Mailbox& mailbox : mailboxes) {
        const QByteArray name = headerText(mailbox.name);
        g_mime_message_add_mailbox(
            message, type, name.isEmpty() ? nullptr : name.constData(), mailbox.address.toUtf8().constData());
    }
}

void setContent(GMimePart* part, const QByteArray& bytes)
{
    const auto stream = owned(g_mime_stream_mem_new_with_buffer(bytes.constData(), size_t(bytes.size())));
    const auto content
        = owned(g_mime_data_wrapper_new_with_stream(stream.get(), GMIME_CONTENT_ENCODING_DEFAULT));
    g_mime_part_set_content(part, content.get());
}

Ref<GMimeObject> textPart(const QString& text, const char* subtype)
{
    GMimePart* part = g_mime_part_new_with_type("text", subtype);
    setContent(part, clean(text, false).toUtf8());
    g_mime_object_set_content_type_parameter(GMIME_OBJECT(part), "charset", "utf-8");
    // Keeps lines short, and "From" and "." at their beginning what they are.
    g_mime_part_set_content_encoding(part, GMIME_CONTENT_ENCODING_QUOTEDPRINTABLE);
    return owned(GMIME_OBJECT(part));
}

Ref<GMimeObject> attachmentPart(const MailAttachment& attachment)
{
    // A message within a message may not be encoded, so it travels as any other file.
    const bool isMail = attachment.type.startsWith("message/") || attachment.type.startsWith("multipart/");
    const QByteArrayList type = attachment.type.split('/');
    GMimePart* part = type.size() == 2 && !isMail
        ? g_mime_part_new_with_type(type[0].constData(), type[1].constData())
        : g_mime_part_new_with_type("application", "octet-stream");
    setContent(part, attachment.bytes);
    g_mime_part_set_content_encoding(part, GMIME_CONTENT_ENCODING_BASE64);
    g_mime_object_set_disposition(GMIME_OBJECT(part), GMIME_DISPOSITION_ATTACHMENT);
    g_mime_part_set_filename(part, clean(attachment.name, true).toUtf8().constData());
    return owned(GMIME_OBJECT(part));
}

Ref<GMimeObject> multipart(const char* subtype, const std::vector<Ref<GMimeObject>>& parts)
{
    GMimeMultipart* whole = g_mime_multipart_new_with_subtype(subtype);
    for (const Ref<GMimeObject>& part : parts)
        g_mime_multipart_add(whole, part.get());
    return owned(GMIME_OBJECT(whole));
}

Ref<GMimeObject> bodyOf(const MailDraft& draft)
{
    Ref<GMimeObject> text;
    if (draft.htmlBody.isEmpty() || !draft.body.isEmpty())
        text = textPart(draft.body, "plain");
    if (!draft.htmlBody.isEmpty()) {
        Ref<GMimeObject> html = textPart(draft.htmlBody, "html");
        if (text) {
            std::vector<Ref<GMimeObject>> both;
            both.push_back(std::move(text));
            both.push_back(std::move(html));
            text = multipart("alternative", both);
        } else {
            text = std::move(html);
        }
    }
    if (draft.attachments.empty())
        return text;
    std::vector<Ref<GMimeObject>> parts;
    parts.push_back(std::move(text));
    for (const MailAttachment& attachment : draft.attachments)
        parts.push_back(attachmentPart(attachment));
    return multipart("mixed", parts);
}

QByteArray newMessageId(const MailDraft& draft)
{
    const QString domain = draft.from ? draft.from->address.section(u'@', -1) : u"orvane-contacts.invalid"_s;
    return (QUuid::createUuid().toString(QUuid::WithoutBraces) + u'@' + domain).toUtf8();
}

Ref<GMimeMessage> parsed(const QByteArray& message)
{
    startLibrary();
    const auto stream = owned(g_mime_stream_mem_new_with_buffer(message.constData(), size_t(message.size())));
    const auto parser = owned(g_mime_parser_new_with_stream(stream.get()));
    return owned(g_mime_parser_construct_message(parser.get(), nullptr));
}

void collect(InternetAddressList* list, QByteArrayList& addresses, int depth = 0)
{
    const int count = list && depth < kMaxDepth ? internet_address_list_length(list) : 0;
    for (int i = 0; i < count; ++i) {
        InternetAddress* each = internet_address_list_get_address(list, i);
        if (INTERNET_ADDRESS_IS_GROUP(each)) {
            collect(internet_address_group_get_members(INTERNET_ADDRESS_GROUP(each)), addresses, depth + 1);
        } else if (INTERNET_ADDRESS_IS_MAILBOX(each)) {
            const QByteArray address = internet_address_mailbox_get_addr(INTERNET_ADDRESS_MAILBOX(each));
            const std::optional<Mailbox> good = readMailbox(QString::fromUtf8(address));
            if (good && !addresses.contains(good->address.toUtf8()))
                addresses << good->address.toUtf8();
        }
    }
}

/// The header without the fields of that name, and the lines that carry them on.
QByteArray withoutField(const QByteArray& header, QByteArrayView name)
{
    QByteArray kept;
    bool isDropped = false;
    for (qsizetype at = 0; at < header.size();) {
        qsizetype end = header.indexOf('\n', at) + 1;
        if (end == 0)
            end = header.size();
        const QByteArrayView line = QByteArrayView(header).sliced(at, end - at);
        if (line.at(0) != ' ' && line.at(0) != '\t') {
            const QByteArrayView field = line.first(std::max<qsizetype>(0, line.indexOf(':'))).trimmed();
            isDropped = field.compare(name, Qt::CaseInsensitive) == 0;
        }
        if (!isDropped)
            kept += line;
        at = end;
    }
    return kept;
}

QString decodedText(GMimePart* part)
{
    const char* charset = g_mime_object_get_content_type_parameter(GMIME_OBJECT(part), "charset");
    GMimeDataWrapper* content = g_mime_part_get_content(part);
    if (!content)
        return {};
    const auto memory = owned(g_mime_stream_mem_new());
    const auto filtered = owned(g_mime_stream_filter_new(memory.get()));
    const bool isUtf8 = charset && qstricmp(charset, "utf-8") == 0;
    if (charset && !isUtf8) {
        if (GMimeFilter* filter = g_mime_filter_charset_new(charset, "utf-8")) {
            g_mime_stream_filter_add(GMIME_STREAM_FILTER(filtered.get()), filter);
            g_object_unref(filter);
        }
    }
    g_mime_data_wrapper_write_to_stream(content, filtered.get());
    g_mime_stream_flush(filtered.get());
    const GByteArray* bytes = g_mime_stream_mem_get_byte_array(GMIME_STREAM_MEM(memory.get()));
    const qint64 size = std::min<qint64>(bytes->len, kMaxTextBytes);
    QString text = QString::fromUtf8(reinterpret_cast<const char*>(bytes->data), size);
    return text.replace(u"\r\n"_s, u"\n"_s);
}

void collectTexts(GMimeObject* object, MailTexts& texts, int depth, int& parts)
{
    if (!object || depth > kMaxDepth || ++parts > kMaxParts)
        return;
    if (GMIME_IS_MULTIPART(object)) {
        const int count = g_mime_multipart_get_count(GMIME_MULTIPART(object));
        for (int i = 0; i < count; ++i)
            collectTexts(g_mime_multipart_get_part(GMIME_MULTIPART(object), i), texts, depth + 1, parts);
    } else if (GMIME_IS_PART(object)) {
        GMimePart* part = GMIME_PART(object);
        GMimeContentType* type = g_mime_object_get_content_type(object);
        const QString name = fromText(g_mime_part_get_filename(part));
        const bool isAttached = g_mime_part_is_attachment(part) || !name.isEmpty();
        if (!isAttached && texts.body.isEmpty() && g_mime_content_type_is_type(type, "text", "plain"))
            texts.body = decodedText(part);
        else if (!isAttached && texts.htmlBody.isEmpty() && g_mime_content_type_is_type(type, "text", "html"))
            texts.htmlBody = decodedText(part);
        else if (!name.isEmpty())
            texts.attachments << name;
    }
}

} // namespace

QByteArray mailBytes(const MailDraft& draft)
{
    startLibrary();
    const auto message = owned(g_mime_message_new(FALSE));
    if (draft.from)
        addMailboxes(message.get(), GMIME_ADDRESS_TYPE_FROM, {*draft.from});
    addMailboxes(message.get(), GMIME_ADDRESS_TYPE_TO, draft.to);
    addMailboxes(message.get(), GMIME_ADDRESS_TYPE_CC, draft.cc);
    addMailboxes(message.get(), GMIME_ADDRESS_TYPE_BCC, draft.bcc);
    g_mime_message_set_subject(
        message.get(), headerText(draft.subject.left(kMaxSubject)).constData(), "utf-8");
    setDate(message.get(), draft.date);
    g_mime_message_set_message_id(message.get(), newMessageId(draft).constData());
    if (draft.isUnsent)
        g_mime_object_set_header(GMIME_OBJECT(message.get()), "X-Unsent", "1", nullptr);
    const Ref<GMimeObject> body = bodyOf(draft);
    g_mime_message_set_mime_part(message.get(), body.get());

    GMimeFormatOptions* format = g_mime_format_options_new();
    g_mime_format_options_set_newline_format(format, GMIME_NEWLINE_FORMAT_DOS);
    const auto stream = owned(g_mime_stream_mem_new());
    g_mime_object_write_to_stream(GMIME_OBJECT(message.get()), format, stream.get());
    g_mime_format_options_free(format);
    const GByteArray* bytes = g_mime_stream_mem_get_byte_array(GMIME_STREAM_MEM(stream.get()));
    return {reinterpret_cast<const char*>(bytes->data), qsizetype(bytes->len)};
}

SendableMail sendable(const QByteArray& message, const Mailbox& from)
{
    SendableMail mail;
    const Ref<GMimeMessage> read = parsed(message);
    if (!read)
        return mail;
    for (const GMimeAddressType type : {GMIME_ADDRESS_TYPE_TO, GMIME_ADDRESS_TYPE_CC, GMIME_ADDRESS_TYPE_BCC})
        collect(g_mime_message_get_addresses(read.get(), type), mail.recipients);

    qsizetype end = message.indexOf("\r\n\r\n");
    end = end < 0 ? message.size() : end + 2;
    QByteArray header = withoutField(message.left(end), "Bcc");
    InternetAddressList* named = g_mime_message_get_from(read.get());
    if (!named || internet_address_list_length(named) == 0) {
        InternetAddress* sender = internet_address_mailbox_new(
            headerText(from.name).constData(), from.address.toUtf8().constData());
        char* written = internet_address_to_string(sender, nullptr, TRUE);
        header.prepend("From: " + QByteArray(written) + "\r\n");
        g_free(written);
        g_object_unref(sender);
    }
    mail.bytes = header + message.mid(end);
    return mail;
}

MailTop readMailTop(const QByteArray& message)
{
    MailTop top;
    const Ref<GMimeMessage> read = parsed(message);
    if (!read)
        return top;
    InternetAddressList* from = g_mime_message_get_from(read.get());
    InternetAddress* sender = from && internet_address_list_length(from) > 0
        ? internet_address_list_get_address(from, 0)
        : nullptr;
    if (sender) {
        top.from.name = clean(fromText(internet_address_get_name(sender)), true);
        if (INTERNET_ADDRESS_IS_MAILBOX(sender))
            top.from.address
                = clean(fromText(internet_address_mailbox_get_addr(INTERNET_ADDRESS_MAILBOX(sender))), true);
    }
    if (char* to = internet_address_list_to_string(
            g_mime_message_get_addresses(read.get(), GMIME_ADDRESS_TYPE_TO), nullptr, FALSE)) {
        top.to = clean(fromText(to), true);
        g_free(to);
    }
    top.subject = clean(fromText(g_mime_message_get_subject(read.get())), true);
    if (GDateTime* date = g_mime_message_get_date(read.get()))
        top.date = QDateTime::fromSecsSinceEpoch(g_date_time_to_unix(date));
    return top;
}

MailTexts readMailTexts(const QByteArray& message)
{
    MailTexts texts;
    const Ref<GMimeMessage> read = parsed(message);
    int parts = 0;
    if (read)
        collectTexts(g_mime_message_get_mime_part(read.get()), texts, 0, parts);
    return texts;
}

} // namespace formats
