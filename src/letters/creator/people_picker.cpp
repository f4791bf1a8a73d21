#include "letters/creator/people_picker.h"

#include "core/vocabularies.h"
#include "letters/creator/letter_lists.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;
using widgets::child;

namespace letters {

PeoplePicker::PeoplePicker(jet::Database& book, QWidget* parent)
    : QWidget(parent)
    , m_book(book)
    , m_people(new widgets::HeadingGrid)
{
    setObjectName(u"PeoplePicker"_s);
    layOut();
    connect(m_source, &QComboBox::currentTextChanged, this, &PeoplePicker::chooseSource);
    connect(m_group, &QComboBox::currentTextChanged, this, &PeoplePicker::readPeople);
    connect(m_name, &QLineEdit::textChanged, this, &PeoplePicker::readPeople);
    connect(m_people, &widgets::HeadingGrid::chosen, this, &PeoplePicker::pickSelected);
    connect(child<QPushButton>(this, u"CmdPick"_s), &QPushButton::clicked, this, &PeoplePicker::pickSelected);
    connect(m_all, &QPushButton::clicked, this, &PeoplePicker::pickAll);
    connect(child<QPushButton>(this, u"CmdPicked"_s), &QPushButton::clicked, this, &PeoplePicker::finished);
}

void PeoplePicker::layOut()
{
    m_people->setHeadings(
        u"|Name                       |City             ", {QString(), u"name"_s, u"h_city"_s});
    m_people->letColumnsGiveWay();
    m_people->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_people->setEmptyText(tr("Nobody is here"));
    m_people->setMinimumHeight(120);
    widgets::FormKit form(this);
    form.group(tr("Select recipients"))
        .fixedCombo(u"CmbPeopleOf"_s, tr("&From"))
        .fixedCombo(u"CmbPeopleGroup"_s, tr("&Which"))
        .line(u"txtPeopleName"_s, tr("Name begins &with"))
        .wide(u"PeopleGrid"_s, tr("People; several can be selected, Enter takes them"), m_people)
        .button(u"CmdPick"_s, tr("&Add selected"), u"add", tr("Write to those that are selected (Enter)"))
        .button(u"CmdPickAll"_s, tr("Add a&ll"), u"persons", tr("Write to all that are listed"))
        .button(u"CmdPicked"_s, tr("&Done"), u"previous", tr("Back to the letter (Esc)"));
    layout()->setContentsMargins(0, 0, 0, 0);
    m_source = child<widgets::FilledCombo>(this, u"CmbPeopleOf"_s);
    m_group = child<widgets::FilledCombo>(this, u"CmbPeopleGroup"_s);
    m_name = child<QLineEdit>(this, u"txtPeopleName"_s);
    m_all = child<QPushButton>(this, u"CmdPickAll"_s);
    m_source->setValues({tr("Address book"), tr("Category"), tr("Mailing list"), tr("Print selection")});
    m_group->setSource([this] {
        const auto source = PeopleOf(m_source->currentIndex());
        return core::firstColumn(
            m_book, source == PeopleOf::Category ? recipientCategoriesSql() : mailingListsSql());
    });
    const QSignalBlocker quiet(m_source);
    m_source->setCurrentIndex(0);
    m_group->setEnabled(false);
}

void PeoplePicker::open()
{
    readPeople();
    m_name->setFocus();
}

void PeoplePicker::readAgain()
{
    m_group->refill();
    if (isVisible())
        readPeople();
}

void PeoplePicker::chooseSource()
{
    const auto source = PeopleOf(m_source->currentIndex());
    const bool hasGroups = source == PeopleOf::Category || source == PeopleOf::MailingList;
    m_group->setEnabled(hasGroups);
    {
        const QSignalBlocker quiet(m_group);
        m_group->refill();
        m_group->setText(hasGroups ? m_group->values().value(0) : QString());
    }
    readPeople();
}

void PeoplePicker::readPeople()
{
    m_people->fill(m_book.openRecordset(
        peopleSql(PeopleOf(m_source->currentIndex()), m_group->currentText(), m_name->text())));
    m_people->setCurrentRow(m_people->rowCount() > 0 ? 0 : -1);
    m_all->setEnabled(m_people->rowCount() > 0);
}

void PeoplePicker::pickSelected()
{
    const QList<qint64> ids = m_people->selectedKeys();
    if (!ids.isEmpty())
        Q_EMIT picked(ids);
}

void PeoplePicker::pickAll()
{
    QList<qint64> ids;
    for (int row = 0; row < m_people->rowCount(); ++row)
        ids << m_people->keyAt(row);
    Q_EMIT picked(ids);
}

void PeoplePicker::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT finished();
    else
        QWidget::keyPressEvent(event);
}

} // namespace letters
