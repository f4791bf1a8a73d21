#include "telephone/dialer/contact_details.h"

#include "core/contact_lookups.h"
#include "core/photo_file.h"
#include "jet/date_text.h"
#include "telephone/dialer/dialer_statements.h"
#include "telephone/weekday_date.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"
#include "widgets/long_text.h"
#include "widgets/picture_box.h"

#include <QDateTime>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>

using namespace Qt::StringLiterals;
using widgets::child;

namespace telephone {

namespace {

constexpr QSize kPictureSize{76, 92};
constexpr QStringView kCallHeadings
    = u"Name                    |Date                 |Time                      ";

enum Page { kFamily, kWork, kNotes };

/// A line of a page, which shows a column as it is, or as one of the wordings below.
struct Line {
    Page page;
    QStringView name;
    const char* label;
    QStringView column;
    QStringView with = {}; ///< the birthday of a child
    int rows = 1;
};
constexpr Line kLines[] = {
    {kFamily, u"lblspouse", QT_TRANSLATE_NOOP("telephone::ContactDetails", "Spouse"), u"Spouse"},
    {kFamily, u"lblkid1", QT_TRANSLATE_NOOP("telephone::ContactDetails", "Child 1"), u"kid1", u"Kid1_BD"},
    {kFamily, u"lblkid2", QT_TRANSLATE_NOOP("telephone::ContactDetails", "Child 2"), u"kid2", u"Kid2_BD"},
    {kFamily, u"lblkid3", QT_TRANSLATE_NOOP("telephone::ContactDetails", "Child 3"), u"kid3", u"Kid3_BD"},
    {kFamily, u"lblm_bd", QT_TRANSLATE_NOOP("telephone::ContactDetails", "Birthday"), u"M_BD"},
    {kFamily, u"lblanniv", QT_TRANSLATE_NOOP("telephone::ContactDetails", "Anniversary"), u"Anniv"},
    {kFamily, u"lblsp_bd", QT_TRANSLATE_NOOP("telephone::ContactDetails", "Spouse's birthday"), u"Sp_BD"},
    {kWork, u"lblcompany", QT_TRANSLATE_NOOP("telephone::ContactDetails", "Company"), u"Company"},
    {kWork, u"lbljob", QT_TRANSLATE_NOOP("telephone::ContactDetails", "Job title"), u"Job_Title"},
    {kWork, u"lblproduct", QT_TRANSLATE_NOOP("telephone::ContactDetails", "Product"), u"Product"},
    {kWork, u"lblstatus", QT_TRANSLATE_NOOP("telephone::ContactDetails", "Status"), u"Status"},
    {kWork, u"lbladdtype", QT_TRANSLATE_NOOP("telephone::ContactDetails", "Address type"), u"W_AddType"},
    {kWork, u"lblwadd", QT_TRANSLATE_NOOP("telephone::ContactDetails", "Work 1"), u"w_add1"},
    {kWork, u"lblbadd", QT_TRANSLATE_NOOP("telephone::ContactDetails", "Work 2"), u"b_add1"},
    {kNotes, u"lblnick", QT_TRANSLATE_NOOP("telephone::ContactDetails", "Nickname"), u"nick"},
    {kNotes, u"lblhobbies", QT_TRANSLATE_NOOP("telephone::ContactDetails", "Hobbies"), u"Hobbies"},
    {kNotes, u"lblnote", QT_TRANSLATE_NOOP("telephone::ContactDetails", "Note"), u"b_note", {}, 4},
};

QString dateText(const QDate& date)
{
    return jet::formatDate(date, u"mmm dd-yyyy");
}

QString textOf(const Line& line, const jet::Recordset& contact)
{
    if (!line.with.isEmpty())
        return childText(contact.textOrEmpty(line.column), contact.date(line.with));
    if (contact.columnType(contact.columnIndex(line.column)) == jet::ColumnType::Date)
        return dateText(contact.date(line.column));
    if (line.column == u"w_add1" || line.column == u"b_add1") {
        QStringList parts;
        for (const QStringView part : {u"add1", u"add2", u"city", u"pin", u"state", u"country"})
            parts << contact.textOrEmpty(line.column.left(2).toString() + part.toString());
        return addressLine(parts);
    }
    return contact.textOrEmpty(line.column);
}

QWidget* scrolled(QWidget* page)
{
    auto* area = new QScrollArea;
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return area;
}

} // namespace

QString childText(const QString& name, const QDate& birthday)
{
    return birthday.isValid() ? (name + u' ' + dateText(birthday)).trimmed() : name;
}

QString addressLine(const QStringList& parts)
{
    QStringList said = parts;
    said.removeIf([](const QString& part) { return part.trimmed().isEmpty(); });
    return said.join(u", "_s);
}

ContactDetails::ContactDetails(core::Context& context, QWidget* parent)
    : QTabWidget(parent)
    , m_context(context)
    , m_picture(new widgets::PictureBox)
    , m_calls(new widgets::HeadingGrid)
{
    setObjectName(u"tab1"_s);
    setDocumentMode(true);
    m_picture->setFixedSize(kPictureSize);
    m_picture->setFocusPolicy(Qt::NoFocus);
    const QString titles[] = {tr("Family"), tr("Work"), tr("Notes")};
    for (const Page page : {kFamily, kWork, kNotes}) {
        auto* body = new QWidget;
        widgets::FormKit form(body);
        form.group();
        if (page == kFamily)
            form.widget(u"Picture1"_s, tr("Picture"), m_picture);
        for (const Line& line : kLines) {
            if (line.page == page)
                form.readOnly(line.name.toString(), tr(line.label), line.rows);
        }
        form.stretch();
        addTab(scrolled(body), titles[page]);
    }
    auto* calls = new QWidget;
    widgets::FormKit form(calls);
    form.group().caption(u"Label28"_s).wide(u"GridCalls"_s, tr("Earlier calls"), m_calls);
    Label28 = child<QLabel>(calls, u"Label28"_s);
    m_calls->setHeadings(kCallHeadings, {u"name"_s, u"date"_s, u"time"_s});
    m_calls->setEmptyText(tr("No call to this person was saved yet"));
    m_calls->showAs(
        u"date"_s, [](const QVariant& date) { return weekdayDate(date.toDate(), u"ddd,dd  mmm"); });
    m_calls->showAs(
        u"time"_s, [](const QVariant& time) { return time.toDateTime().time().toString(u"HH:mm"_s); });
    addTab(calls, tr("Calls"));
}

void ContactDetails::showContact(qint64 id)
{
    const jet::Recordset contact = m_context.data.openRecordset(core::contactByIdSql(id));
    if (!contact.hasRow())
        return;
    for (const Line& line : kLines)
        widgets::setTextOf(child<QWidget>(this, line.name.toString()), textOf(line, contact));
    m_picture->setPath(core::photoFile(m_context.services.drive, contact.textOrEmpty(u"PhotLoc")));
}

void ContactDetails::clearContact()
{
    for (const Line& line : kLines)
        widgets::setTextOf(child<QWidget>(this, line.name.toString()), {});
    m_picture->setPath({});
}

void ContactDetails::showCalls(const QString& name)
{
    m_calls->fill(m_context.data.openRecordset(callsOfPersonSql(name)));
}

void ContactDetails::setCaption(const QString& caption)
{
    Label28->setText(widgets::beginning(Label28, caption));
}

} // namespace telephone
