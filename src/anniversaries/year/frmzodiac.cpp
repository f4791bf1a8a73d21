#include "anniversaries/year/frmzodiac.h"

#include "anniversaries/year/year_sign.h"
#include "anniversaries/year/zodiac_sql.h"
#include "core/screens.h"
#include "jet/date_text.h"
#include "output/grid/list_print.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"
#include "widgets/theme.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace anniversaries {

namespace {

constexpr QStringView kAll = u"All";

/// A text of the reference in its box.
struct Box {
    QStringView column;
    const char* label; ///< for translation
};
struct Page {
    const char* title;
    std::initializer_list<Box> boxes;
};
const Page kPages[] = {
    {QT_TRANSLATE_NOOP("anniversaries", "Main"),
        {{u"Sign", QT_TRANSLATE_NOOP("anniversaries", "Sign")},
            {u"Symbol", QT_TRANSLATE_NOOP("anniversaries", "Symbol")},
            {u"Rashis", QT_TRANSLATE_NOOP("anniversaries", "Rashis")},
            {u"Planet", QT_TRANSLATE_NOOP("anniversaries", "Planet")},
            {u"Element", QT_TRANSLATE_NOOP("anniversaries", "Elements")}}},
    {QT_TRANSLATE_NOOP("anniversaries", "Details"),
        {{u"Colours", QT_TRANSLATE_NOOP("anniversaries", "Lucky Colour")},
            {u"LuckyStone", QT_TRANSLATE_NOOP("anniversaries", "Lucky Stone")},
            {u"Parts", QT_TRANSLATE_NOOP("anniversaries", "Parts")},
            {u"Gender", QT_TRANSLATE_NOOP("anniversaries", "Gender")},
            {u"Elements1", QT_TRANSLATE_NOOP("anniversaries", "Principle")}}},
    {QT_TRANSLATE_NOOP("anniversaries", "Other"),
        {{u"Greh", QT_TRANSLATE_NOOP("anniversaries", "Greh")},
            {u"Elements2", QT_TRANSLATE_NOOP("anniversaries", "Herbs")},
            {u"Direction", QT_TRANSLATE_NOOP("anniversaries", "Direction")},
            {u"RisingPortion", QT_TRANSLATE_NOOP("anniversaries", "Rising portion")},
            {u"Day/Night", QT_TRANSLATE_NOOP("anniversaries", "Day or night")}}},
};

/// What the list can be grouped by.
struct Group {
    const char* caption; ///< for translation
    QStringView column;
};
constexpr Group kGroups[] = {{QT_TRANSLATE_NOOP("anniversaries", "(no groups)"), u""},
    {QT_TRANSLATE_NOOP("anniversaries", "Category"), u"Category1"},
    {QT_TRANSLATE_NOOP("anniversaries", "Sub Category"), u"Category2"},
    {QT_TRANSLATE_NOOP("anniversaries", "Priority"), u"Priority"},
    {QT_TRANSLATE_NOOP("anniversaries", "First name"), u"First"},
    {QT_TRANSLATE_NOOP("anniversaries", "Last name"), u"Last"},
    {QT_TRANSLATE_NOOP("anniversaries", "City"), u"h_city"}};

QString translated(const char* text)
{
    return QCoreApplication::translate("anniversaries", text);
}

QString boxName(QStringView column)
{
    return u"txt"_s + QString(column.toString()).remove(u'/');
}

} // namespace

frmzodiac::frmzodiac(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_signs(new QButtonGroup(this))
    , SSActiveTabs1(new QTabWidget)
    , VSFlexGrid1(new widgets::HeadingGrid)
    , grp(new widgets::FilledCombo(nullptr, widgets::FilledCombo::Typing::ListOnly))
    , m_listTools(new output::ListTools(context, VSFlexGrid1, this))
    , LblStart(new QLabel)
    , LblEnd(new QLabel)
{
    setWindowTitle(tr("Zodiac"));
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(layOutReference());
    splitter->addWidget(layOutList());
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 1);
    auto* below = new QVBoxLayout;
    below->setContentsMargins(8, 6, 8, 8);
    below->setSpacing(6);
    below->addWidget(layOutSigns());
    below->addWidget(splitter, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_listTools->makeToolBar(this));
    layout->addLayout(below, 1);
    connect(m_signs, &QButtonGroup::buttonClicked, this,
        [this](QAbstractButton* button) { choose(button->objectName()); });
    connect(grp, &QComboBox::currentTextChanged, this, &frmzodiac::listPeople);
}

QWidget* frmzodiac::layOutSigns()
{
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(4);
    const auto add = [&](const QString& name, const QString& text, const QString& tip) {
        auto* button = new QToolButton;
        button->setObjectName(name);
        button->setText(text);
        button->setToolTip(tip);
        button->setCheckable(true);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        m_signs->addButton(button);
        const int place = int(m_signs->buttons().size()) - 1;
        constexpr int kInARow = 7;
        grid->addWidget(button, place / kInARow, place % kInARow);
    };
    for (const ZodiacSign& sign : zodiacSigns())
        add(sign.name.toString(), sign.name.toString(), sign.name.toString());
    add(kAll.toString(), tr("All"), tr("Everybody, whatever the sign"));
    auto* help = new QPushButton(tr("&Help"));
    help->setObjectName(u"CmdHelp"_s);
    widgets::setIcon(help, u"help");
    connect(help, &QPushButton::clicked, this, [this, help] { showHelp(u"CON0075"_s, help); });
    grid->addWidget(help, 1, 6);
    return page;
}

QWidget* frmzodiac::layOutReference()
{
    SSActiveTabs1->setObjectName(u"SSActiveTabs1"_s);
    SSActiveTabs1->setDocumentMode(true);
    for (const Page& page : kPages) {
        auto* tab = new QWidget;
        widgets::FormKit form(tab);
        form.group();
        if (page.title == kPages[0].title) {
            auto* days = new QWidget;
            auto* row = new QHBoxLayout(days);
            row->setContentsMargins(0, 0, 0, 0);
            LblStart->setObjectName(u"LblStart"_s);
            LblEnd->setObjectName(u"LblEnd"_s);
            for (QWidget* part : {LblStart, new QLabel(u"–"_s), LblEnd})
                row->addWidget(part);
            row->addStretch(1);
            form.widget(u"days"_s, tr("Days"), days);
        }
        for (const Box& box : page.boxes)
            form.readOnly(boxName(box.column), translated(box.label));
        if (page.title == kPages[0].title)
            form.readOnly(boxName(u"Description"), tr("Description"), 6);
        form.stretch();
        SSActiveTabs1->addTab(tab, translated(page.title));
    }
    return SSActiveTabs1;
}

QWidget* frmzodiac::layOutList()
{
    VSFlexGrid1->setObjectName(u"VSFlexGrid1"_s);
    VSFlexGrid1->letColumnsGiveWay();
    VSFlexGrid1->setAccessibleName(tr("Who was born under the sign"));
    VSFlexGrid1->setEmptyText(tr("Nobody of the address book was born under this sign."));
    VSFlexGrid1->showAs(
        u"m_bd"_s, [](const QVariant& date) { return jet::formatDate(date.toDate(), u"mmm-dd"); });
    VSFlexGrid1->showEmptyAs(
        u"sunsign"_s, u"m_bd"_s, [](const QVariant& date) { return yearSign(date.toDate()); });
    grp->setObjectName(u"grp"_s);
    grp->setAccessibleName(tr("Group by"));
    QStringList captions;
    for (const Group& group : kGroups)
        captions << translated(group.caption);
    grp->setValues(captions);
    grp->setText(captions.first());
    auto* label = new QLabel(tr("&Group by"));
    label->setBuddy(grp);
    auto* head = new QHBoxLayout;
    head->addWidget(label);
    head->addWidget(grp);
    head->addStretch(1);
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(6, 0, 0, 0);
    layout->addLayout(head);
    layout->addWidget(VSFlexGrid1, 1);
    return page;
}

void frmzodiac::load()
{
    findChild<QAbstractButton*>(u"Aries"_s)->setChecked(true);
    m_sign = u"Aries"_s;
    showReference(m_sign);
    setFrameTitle(windowTitle());
    // In a large book the people take longer than the page.
    QTimer::singleShot(0, this, &frmzodiac::listPeople);
}

void frmzodiac::bookChanged()
{
    listPeople();
}

void frmzodiac::choose(const QString& sign)
{
    m_sign = sign;
    showReference(sign);
    listPeople();
}

void frmzodiac::showReference(const QString& sign)
{
    const jet::Recordset about = context().info.openRecordset(aboutSignSql(sign));
    const auto show = [&](QStringView column) {
        QWidget* box = findChild<QWidget*>(boxName(column));
        const QString text = about.textOrEmpty(column);
        if (auto* line = qobject_cast<QLineEdit*>(box)) {
            line->setText(text);
            line->setCursorPosition(0);
        } else if (auto* lines = qobject_cast<QPlainTextEdit*>(box)) {
            lines->setPlainText(text);
        }
    };
    for (const Page& page : kPages) {
        for (const Box& box : page.boxes)
            show(box.column);
    }
    show(u"Description");
    const QStringView pattern = shared().NationalMode ? u"dd MMM" : u"MMM dd";
    LblStart->setText(jet::formatDate(about.date(u"DateStart"), pattern));
    LblEnd->setText(jet::formatDate(about.date(u"DateEnd"), pattern));
}

void frmzodiac::listPeople()
{
    const QString group = kGroups[qMax(0, grp->currentIndex())].column.toString();
    VSFlexGrid1->setOutline({});
    // The column of the groups stands first, so that their headings have a place.
    const QString head = u"Birtday  |Name                                     |Sun Sign     "_s;
    const QStringList columns{u"m_bd"_s, u"name"_s, u"sunsign"_s};
    VSFlexGrid1->setHeadings(group.isEmpty() ? head : grp->currentText() + u"            |"_s + head,
        group.isEmpty() ? columns : QStringList{group} + columns);
    VSFlexGrid1->fill(context().data.openRecordset(bornUnderSql(m_sign, group)));
    VSFlexGrid1->setOutline(group);
    setPosition(tr("%n people", nullptr, VSFlexGrid1->recordCount()));
}

} // namespace anniversaries
