#include "telephone/codes/word_lists.h"

#include "telephone/codes/address_words.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"
#include "widgets/record_list.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTabBar>

#include <utility>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

using widgets::child;

enum Tab { kGeneral, kSpecific };

} // namespace

WordLists::WordLists(jet::Database& book, bool nationalMode, QWidget* parent)
    : QWidget(parent)
    , m_book(book)
    , m_nationalMode(nationalMode)
    , SSActiveTabs1(new QTabBar)
    , m_pages(new QStackedWidget)
    , Grid1(new widgets::RecordList(nullptr, u"address"_s))
    , Grid2(new widgets::RecordList(nullptr, u"area"_s))
{
    layOut();
    connect(SSActiveTabs1, &QTabBar::currentChanged, m_pages, &QStackedWidget::setCurrentIndex);
    for (QLineEdit* line : {Text1, m_city}) {
        connect(line, &QLineEdit::textEdited, this, &WordLists::read);
        line->installEventFilter(this);
    }
    for (widgets::RecordList* list : {Grid1, Grid2}) {
        const auto pick = [this, list] {
            const QString text = list->currentText(list == Grid1 ? u"address"_s : u"area"_s);
            if (!text.isEmpty())
                Q_EMIT picked(text);
        };
        connect(list, &QTableView::clicked, this, pick);
        connect(list, &widgets::HeadingGrid::chosen, this, pick);
    }
    setFocusProxy(Text1);
}

void WordLists::layOut()
{
    SSActiveTabs1->addTab(tr("General"));
    SSActiveTabs1->addTab(tr("Specific"));
    SSActiveTabs1->setDrawBase(false);
    SSActiveTabs1->setExpanding(false);
    Grid1->setEmptyText(tr("No stored address begins so"));
    Grid2->setEmptyText(tr("No area of this city is stored"));
    widgets::FormKit form(this);
    form.group()
        .line(u"Text1"_s, tr("&Beginning"))
        .hint(tr("How the address begins"))
        .beside()
        .line(u"txtcity"_s, tr("&City"))
        .wide(u"SSActiveTabs1"_s, tr("Which words are listed"), SSActiveTabs1)
        .wide(u"WordPages"_s, tr("Words"), m_pages);
    Grid1->setObjectName(u"Grid1"_s);
    Grid1->setAccessibleName(tr("Addresses"));
    Grid2->setObjectName(u"Grid2"_s);
    Grid2->setAccessibleName(tr("Areas of the city"));
    for (widgets::RecordList* list : {Grid1, Grid2})
        m_pages->addWidget(list);
    Text1 = child<QLineEdit>(this, u"Text1"_s);
    m_city = child<QLineEdit>(this, u"txtcity"_s);
}

void WordLists::search(const QString& city, const QString& word)
{
    Text1->setText(word);
    m_city->setText(city);
    read();
    const bool isSpecific = Grid1->rowCount() == 0 && Grid2->rowCount() > 0;
    SSActiveTabs1->setCurrentIndex(isSpecific ? kSpecific : kGeneral);
}

// What is no pattern leaves a list as it was.
void WordLists::read()
{
    jet::Recordset addresses = m_book.openRecordset(addressWordsSql(Text1->text(), m_nationalMode));
    if (addresses.isValid())
        Grid1->fill(std::move(addresses));
    jet::Recordset areas = m_book.openRecordset(cityAreasSql(m_city->text().trimmed()));
    if (areas.isValid())
        Grid2->fill(std::move(areas));
    for (widgets::RecordList* list : {Grid1, Grid2})
        list->setCurrentRow(list->rowCount() > 0 ? 0 : -1);
}

// While the word is being typed, the list is walked through and chosen from without leaving the line.
bool WordLists::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const int row = shownList()->currentRow();
        if (key == Qt::Key_Down && row + 1 < shownList()->rowCount())
            shownList()->setCurrentRow(row + 1);
        else if (key == Qt::Key_Up && row > 0)
            shownList()->setCurrentRow(row - 1);
        else if ((key == Qt::Key_Return || key == Qt::Key_Enter) && row >= 0)
            Q_EMIT shownList()->chosen(row);
        else
            return QWidget::eventFilter(watched, event);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

widgets::RecordList* WordLists::shownList() const
{
    return SSActiveTabs1->currentIndex() == kGeneral ? Grid1 : Grid2;
}

} // namespace telephone
