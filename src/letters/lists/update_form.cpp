#include "letters/lists/update_form.h"

#include "jet/date_text.h"
#include "platform/cp1252.h"

#include <span>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr QStringView kNoAddress = u"your.name@your.provider";

struct Input {
    QStringView column; ///< and name
    QStringView label; ///< empty for one that stands beside the input before it
    int size;
    int longest;
    QStringView before = {}; ///< stands in front of the field
    bool isDate = false;
};

struct Block {
    QStringView title;
    std::span<const Input> inputs;
};

constexpr Input kHome[] = {
    {u"Company", u"Company", 41, 50},
    {u"H_Add1", u"Address", 41, 50},
    {u"H_Add2", u" ", 41, 50},
    {u"H_City", u"City, Pin", 22, 20},
    {u"H_Pin", u"", 10, 10},
    {u"H_State", u"State", 41, 20},
    {u"H_Country", u"Country", 41, 20},
    {u"H_Std", u"Code, Phones", 3, 10},
    {u"H_Ph1", u"", 11, 15},
    {u"H_Ph2", u"", 11, 15},
    {u"H_Ph3", u"", 10, 15},
    {u"Mobile", u"Mobile", 41, 20},
};
constexpr Input kWork1[] = {
    {u"W_Add1", u"Address", 41, 50},
    {u"W_Add2", u" ", 41, 50},
    {u"W_City", u"City, Pin", 22, 20},
    {u"W_Pin", u"", 10, 10},
    {u"W_State", u"State", 41, 20},
    {u"W_Country", u"Country", 41, 20},
    {u"W_Std", u"Code, Phones, Extension", 3, 10},
    {u"W_Ph1", u"", 11, 15},
    {u"W_Ph2", u"", 11, 15},
    {u"W_Ph3", u"", 10, 15},
    {u"W_Tel_Xtn", u"", 5, 5},
};
constexpr Input kWork2[] = {
    {u"B_Add1", u"Address", 41, 50},
    {u"B_Add2", u" ", 41, 50},
    {u"B_City", u"City, Pin", 22, 20},
    {u"B_Pin", u"", 10, 10},
    {u"B_State", u"State", 41, 20},
    {u"B_Country", u"Country", 41, 20},
    {u"B_Std", u"Code, Phones, Extension", 3, 10},
    {u"B_Ph1", u"", 11, 15},
    {u"B_Ph2", u"", 11, 15},
    {u"B_Ph3", u"", 10, 15},
    {u"B_Tel_Xtn", u"", 5, 5},
};
constexpr Input kPersonal[] = {
    {u"Spouse", u"Spouse, Birthday", 14, 30},
    {u"Sp_BD", u"", 10, 9, u"", true},
    {u"Anniv", u"Anniversary", 10, 9, u"", true},
    {u"Kid1", u"Child 1, Birthday", 14, 30},
    {u"Kid1_BD", u"", 10, 9, u"", true},
    {u"Kid2", u"Child 2, Birthday", 14, 30},
    {u"Kid2_BD", u"", 10, 9, u"", true},
    {u"Kid3", u"Child 3, Birthday", 14, 30},
    {u"Kid3_BD", u"", 10, 9, u"", true},
    {u"SP_Mobile", u"Mobile of the spouse", 12, 15},
};
constexpr Input kWeb[] = {
    {u"H_EMail1", u"E-mail (home)", 17, 50},
    {u"H_EMail2", u"", 16, 50},
    {u"B_EMail1", u"E-mail (work)", 17, 50},
    {u"B_EMail2", u"", 16, 50},
    {u"H_Web", u"Web", 29, 100, u"http://"},
};
constexpr Input kOther[] = {
    {u"Job_Title", u"Job title", 31, 30},
    {u"B_Product", u"Product", 31, 30},
    {u"AltContact", u"Alternate contact", 31, 20},
    {u"AltTitle", u"Title of the alternate", 31, 20},
};
constexpr Block kBlocks[] = {{u"HOME", kHome}, {u"WORK 1", kWork1}, {u"WORK 2", kWork2},
    {u"PERSONAL", kPersonal}, {u"Web & E-mail", kWeb}, {u"Other", kOther}};

/// A text in the page; quotes too, so that it may stand in an attribute. Letters that the code page lacks are
/// written by their number.
QString escaped(const QString& text)
{
    QString html;
    for (const uint letter : text.toHtmlEscaped().toUcs4()) {
        const QString one = QString::fromUcs4(reinterpret_cast<const char32_t*>(&letter), 1);
        html += platform::isInCp1252(one) ? one : u"&#%1;"_s.arg(letter);
    }
    return html;
}

QString shownValue(const jet::Recordset& contact, const Input& input)
{
    if (input.isDate)
        return jet::formatDate(contact.date(input.column), u"dd-MMM-yy"_s);
    const QString value = contact.textOrEmpty(input.column).simplified();
    const bool repeats = !input.before.isEmpty() && value.startsWith(input.before, Qt::CaseInsensitive);
    return repeats ? value.mid(input.before.size()) : value;
}

QString inputTag(const jet::Recordset& contact, const Input& input)
{
    return u"%1<input type=\"text\" name=\"%2\" size=\"%3\" maxlength=\"%4\" value=\"%5\">%6"_s.arg(
        input.before.toString(), input.column.toString(), QString::number(input.size),
        QString::number(input.longest), escaped(shownValue(contact, input)),
        input.isDate ? u" (dd-mmm-yy)"_s : QString());
}

QString blockRows(const jet::Recordset& contact, const Block& block)
{
    QString html
        = u"<tr><td colspan=\"2\"><hr><b>%1</b></td></tr>\n"_s.arg(block.title.toString().toHtmlEscaped());
    bool isOpen = false;
    for (const Input& input : block.inputs) {
        if (input.label.isEmpty()) {
            html += u"\n"_s + inputTag(contact, input);
            continue;
        }
        if (isOpen)
            html += u"</td></tr>\n"_s;
        const QString label = input.label.trimmed().isEmpty() ? u"&nbsp;"_s : input.label.toString();
        html += u"<tr><td>%1</td><td>"_s.arg(label) + inputTag(contact, input);
        isOpen = true;
    }
    return html + u"</td></tr>\n"_s;
}

} // namespace

// Kept: "&Subject" follows the address at once, and the comment is spelled as it is; answers are told by it.
QByteArray updateForm(const jet::Recordset& contact, const QString& ownAddress)
{
    const QString address = ownAddress.trimmed().isEmpty() ? kNoAddress.toString() : ownAddress.trimmed();
    QString html = u"<html>\n"
                   "<head>\n"
                   "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=windows-1252\">\n"
                   "<title>Orvane - update your contact details</title>\n"
                   "</head>\n"
                   "<body bgcolor=\"#00FFFF\">\n"
                   "<h2>Orvane - Update Contact</h2>\n"_s;
    html += u"<p>Hi! "_s + escaped(contact.textOrEmpty(u"name").simplified()) + u",</p>\n"_s;
    html += u"<p>In my address book i have your old contact details. So, please update/fill the following "
            "info which is needed for future correspondence.</p>\n"
            "<!-- give the mail of the user who is sendin the mail -->\n"
            "<form method=\"POST\" enctype=\"text/plain\" action=\"mailto:"_s
        + escaped(address) + u"&Subject=Updated Address\">\n<table border=\"0\">\n"_s;
    for (const Block& block : kBlocks)
        html += blockRows(contact, block);
    html += u"</table>\n<p><input type=\"submit\" name=\"CMDSubmit\" value=\"  Click here to mail the "
            u"changes  "
            "\">\n<input type=\"hidden\" name=\"HIDUserID\" value=\""_s
        + QString::number(contact.number(u"id")) + u"\"></p>\n</form>\n</body>\n</html>\n"_s;
    return platform::toCp1252(html.replace(u'\n', u"\r\n"_s));
}

QString updateMailBody(const QString& name)
{
    return u"Dear "_s + name + u"\rPlease update your address"_s;
}

QString updateMailSubject()
{
    return u"Update Your Address"_s;
}

} // namespace letters
