#include "anniversaries/list/day_detail.h"

#include "anniversaries/list/day_sign.h"
#include "jet/date_text.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace anniversaries {

DayDetail::DayDetail(QWidget* parent)
    : QFrame(parent)
{
    widgets::FormKit form(this);
    form.group()
        .caption(u"lblname"_s)
        .caption(u"LblDate"_s)
        .caption(u"LblBday"_s, {}, tr("Date"))
        .caption(u"LblPerson"_s, {}, tr("Person"))
        .caption(u"lblAge"_s, {}, tr("Age"))
        .caption(u"lblZodiac"_s, {}, tr("Sign"))
        .caption(u"lblcity"_s, {}, tr("City"))
        .caption(u"lblCateg"_s, {}, tr("Category"));
    for (const widgets::Control& control : form.controls()) {
        auto* value = qobject_cast<QLabel*>(control.widget);
        value->setWordWrap(true);
        m_values << value;
    }
    QFont bold = m_values.constFirst()->font();
    bold.setBold(true);
    m_values.constFirst()->setFont(bold);
}

void DayDetail::display(const ListedDay& day, Occasion occasion)
{
    const auto show = [this](const QString& name, const QString& text) {
        widgets::child<QLabel>(this, name)->setText(text);
    };
    show(u"lblname"_s, whoCelebrates(day, occasion));
    show(u"LblDate"_s, whatIsCelebrated(day, occasion));
    show(u"LblBday"_s, jet::formatDate(day.date, u"dd-mmm-yyyy"));
    show(u"LblPerson"_s, day.name);
    show(u"lblAge"_s, day.age);
    show(u"lblZodiac"_s, occasion == Occasion::Birthday ? signOfDay(day.date) : QString());
    show(u"lblcity"_s, day.city);
    show(u"lblCateg"_s, QStringList{day.category1, day.category2}.join(u"  "_s).trimmed());
}

void DayDetail::clear(const QString& why)
{
    for (QLabel* value : std::as_const(m_values))
        value->clear();
    m_values.constFirst()->setText(why);
}

QString whoCelebrates(const ListedDay& day, Occasion occasion)
{
    return occasion == Occasion::Birthday ? day.name + u"    ("_s + day.contact + u')'
                                          : day.name + u" & "_s + day.spouse;
}

QString whatIsCelebrated(const ListedDay& day, Occasion occasion)
{
    return jet::formatDate(day.date, u"dd mmm")
        + (occasion == Occasion::Birthday ? u"  is Birthday of "_s : u"  -  Anniversary of "_s) + day.name;
}

} // namespace anniversaries
