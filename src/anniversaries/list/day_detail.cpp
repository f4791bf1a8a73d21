#include "anniversaries/list/day_detail.h"

#include "anniversaries/list/day_sign.h"
#include "jet/date_text.h"
#include "widgets/fields.h"

#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace anniversaries {

DayDetail::DayDetail(QWidget* parent)
    : QFrame(parent)
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 4, 0, 4);
    layout->setHorizontalSpacing(8);
    layout->setVerticalSpacing(3);
    layout->setColumnStretch(1, 1);
    const auto value = [this](const QString& name) {
        auto* label = new QLabel;
        label->setObjectName(name);
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setWordWrap(true);
        m_values << label;
        return label;
    };
    int row = 0;
    for (const QString& name : {u"lblname"_s, u"LblDate"_s})
        layout->addWidget(value(name), row++, 0, 1, 2);
    const auto field = [&](const QString& name, const QString& title) {
        auto* label = new QLabel(title);
        label->setForegroundRole(QPalette::PlaceholderText);
        layout->addWidget(label, row, 0, Qt::AlignTop);
        layout->addWidget(value(name), row++, 1);
    };
    field(u"LblBday"_s, tr("Date"));
    field(u"LblPerson"_s, tr("Person"));
    field(u"lblAge"_s, tr("Age"));
    field(u"lblZodiac"_s, tr("Sign"));
    field(u"lblcity"_s, tr("City"));
    field(u"lblCateg"_s, tr("Category"));
    layout->setRowStretch(row, 1);
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
