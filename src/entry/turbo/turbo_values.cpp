#include "entry/turbo/turbo_values.h"

#include "entry/assists/city_scope.h"
#include "widgets/key_pad.h"
#include "widgets/record_list.h"
#include "widgets/theme.h"

#include <QCalendarWidget>
#include <QCoreApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace entry {

namespace {

constexpr int kLeastWidth = 160;
constexpr int kMostWidth = 280;
const QString kListColumn = u"Name"_s;

} // namespace

TurboValues::TurboValues(core::Context& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , LblListText(new QLabel(this))
    , Frame1(new CityScopePanel(context.info, tr("In&dian"), CityScopePanel::MainCities::NotOffered, this))
    , List2(new widgets::RecordList(this))
    , abc(new QCalendarWidget(this))
    , Framekeypad(new QGroupBox(tr("Key pad"), this))
    , m_hint(new QLabel(this))
{
    layOut();
    wire();
}

void TurboValues::layOut()
{
    LblListText->setObjectName(u"LblListText"_s);
    LblListText->setBuddy(List2);
    QFont bold = LblListText->font();
    bold.setBold(true);
    LblListText->setFont(bold);
    Frame1->setObjectName(u"Frame1"_s);
    List2->setObjectName(u"List2"_s);
    List2->setToolTip(tr("A click or Enter takes a value and goes on to the next field; type to find one"));
    List2->setEmptyText(tr("No known values: type into the box"));
    layOutCalendar();
    layOutPad();
    m_hint->setObjectName(u"lblHint"_s);
    m_hint->setWordWrap(true);
    m_hint->setForegroundRole(QPalette::PlaceholderText);

    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(6);
    whole->addWidget(LblListText);
    whole->addWidget(Frame1);
    whole->addWidget(List2, 1);
    whole->addWidget(abc);
    whole->addWidget(Framekeypad);
    whole->addWidget(m_hint);
    whole->addStretch(0);
    setMinimumWidth(kLeastWidth);
    setMaximumWidth(kMostWidth);
}

void TurboValues::layOutCalendar()
{
    abc->setObjectName(u"abc"_s);
    abc->setAccessibleName(tr("Calendar"));
    abc->setToolTip(tr("A click takes a day; Enter takes it and goes on"));
    abc->setLocale(QLocale::c());
    abc->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    abc->setHorizontalHeaderFormat(QCalendarWidget::SingleLetterDayNames);
    abc->setMinimumHeight(240);
    // A whole week is in sight also where the window is small.
    if (auto* days = abc->findChild<QTableView*>())
        days->horizontalHeader()->setMinimumSectionSize(1);
}

void TurboValues::layOutPad()
{
    Framekeypad->setObjectName(u"Framekeypad"_s);
    auto* keys = new widgets::KeyPad(u"Command9"_s);
    auto* back = new QPushButton(tr("Back"));
    back->setObjectName(u"Cmdback"_s);
    back->setToolTip(tr("Takes the last character off the telephone box"));
    back->setFocusPolicy(Qt::NoFocus);
    back->setAutoDefault(false);
    auto* pad = new QVBoxLayout(Framekeypad);
    pad->addWidget(keys, 0, Qt::AlignHCenter);
    pad->addWidget(back, 0, Qt::AlignHCenter);
    connect(keys, &widgets::KeyPad::keyPressed, this, &TurboValues::digitPressed);
    connect(back, &QPushButton::clicked, this, &TurboValues::backPressed);
}

void TurboValues::wire()
{
    connect(Frame1, &CityScopePanel::changed, this, &TurboValues::fillCities);
    connect(List2, &widgets::HeadingGrid::chosen, this, &TurboValues::take);
    connect(
        List2, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) { take(index.row()); });
    connect(abc, &QCalendarWidget::clicked, this, &TurboValues::dayClicked);
    connect(abc, &QCalendarWidget::activated, this, &TurboValues::dayTaken);
    List2->installEventFilter(this);
    List2->viewport()->installEventFilter(this);
}

void TurboValues::showField(const TurboField& field, const QString& homeCity, QDate day)
{
    m_kind = field.kind;
    const QString name = QCoreApplication::translate("entry", field.name);
    LblListText->setText(name);
    List2->setAccessibleName(name);
    const bool city = m_kind == TurboKind::City;
    const bool calendar = m_kind == TurboKind::Calendar;
    const bool pad = m_kind == TurboKind::DigitPad;
    const bool typed = m_kind == TurboKind::Typed;
    Frame1->setVisible(city);
    List2->setVisible(!calendar && !pad);
    abc->setVisible(calendar);
    Framekeypad->setVisible(pad);
    m_hint->setVisible(pad || calendar);
    m_hint->setText(pad ? tr("The digits go to the telephone box that you entered last.")
                        : tr("A click takes a day. Enter or a double click goes on as well."));
    if (calendar) {
        abc->setProperty("tag", field.tag.toString());
        abc->setSelectedDate(day);
        return;
    }
    if (pad || typed)
        return List2->clearRows();
    if (m_kind == TurboKind::Fixed)
        return fillFrom(fixedValues(field));
    if (city) {
        Frame1->select(CityScope::All);
        return Frame1->fill();
    }
    const TurboSource source = turboSource(field, m_context.shared.NationalMode, homeCity);
    // The person's own lists are short and may hold rows without a value; the shipped ones are long.
    if (source.inInformation)
        fillFrom(m_context.info.openRecordset(source.sql));
    else
        fillFrom(core::firstColumn(m_context.data, source.sql));
}

void TurboValues::fillFrom(const QStringList& values)
{
    QList<QStringList> rows;
    for (const QString& value : values)
        rows.append({value});
    m_column = kListColumn;
    List2->setHeadings(m_column, {m_column});
    List2->setRows(rows, {m_column});
}

void TurboValues::fillFrom(jet::Recordset rows)
{
    const QStringList columns = rows.columns();
    m_column = columns.isEmpty() ? kListColumn : columns.constFirst();
    List2->setHeadings(m_column, {m_column});
    List2->fill(std::move(rows));
    List2->scrollToTop();
}

void TurboValues::fillCities()
{
    if (m_kind == TurboKind::City)
        fillFrom(m_context.info.openRecordset(cityListSql(Frame1->choice(m_context.shared.NationalMode))));
}

bool TurboValues::focusValues()
{
    if (m_kind == TurboKind::Calendar) {
        abc->setFocus();
        return true;
    }
    if (!List2->isVisibleTo(this) || List2->rowCount() == 0)
        return false;
    if (List2->currentRow() < 0)
        List2->setCurrentRow(0);
    List2->setFocus();
    return true;
}

QString TurboValues::country() const
{
    return Frame1->country();
}

void TurboValues::take(int row)
{
    Q_EMIT taken(List2->textAt(row, m_column));
}

bool TurboValues::eventFilter(QObject* watched, QEvent* event)
{
    // The first click has taken a value; the second one of a double click would take one of the next field.
    if (watched == List2->viewport() && event->type() == QEvent::MouseButtonDblClick)
        return true;
    if (watched == List2 && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Left)
            Q_EMIT leftToFields();
        else if (key == Qt::Key_Right)
            Q_EMIT rightToBox();
        else
            return false;
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace entry
