#include "views/search/result_detail.h"

#include "core/photo_file.h"
#include "jet/recordset.h"
#include "views/contact_pages/record_texts.h"
#include "widgets/fields.h"
#include "widgets/long_text.h"
#include "widgets/picture_box.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <iterator>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr QSize kPictureSize{92, 116};
constexpr int kLeastWidth = 600; ///< below which the panel scrolls

enum Column { Person, Home, Work, Telephones };

/// A text with its label, if any, from top to bottom of its column.
struct Shown {
    Column column;
    QStringView name;
    const char* label;
};

constexpr Shown kShown[] = {
    {Person, u"lblcmp", QT_TRANSLATE_NOOP("views", "Company")},
    {Person, u"lblprd", QT_TRANSLATE_NOOP("views", "Product")},
    {Person, u"lblcat1", QT_TRANSLATE_NOOP("views", "Category")},
    {Person, u"lblcat2", QT_TRANSLATE_NOOP("views", "Sub category")},
    {Person, u"lblst", QT_TRANSLATE_NOOP("views", "Status")},
    {Person, u"lblrel", QT_TRANSLATE_NOOP("views", "Relation")},
    {Person, u"lblaspouse", QT_TRANSLATE_NOOP("views", "Spouse")},
    {Person, u"lblkid1", QT_TRANSLATE_NOOP("views", "Child 1")},
    {Person, u"lblkid2", QT_TRANSLATE_NOOP("views", "Child 2")},
    {Person, u"lblkid3", QT_TRANSLATE_NOOP("views", "Child 3")},
    {Home, u"lbladd1", nullptr},
    {Work, u"lblbadd1", nullptr},
    {Telephones, u"lblhph1", QT_TRANSLATE_NOOP("views", "Home")},
    {Telephones, u"lblhph2", nullptr},
    {Telephones, u"lblhph3", nullptr},
    {Telephones, u"lblwph1", QT_TRANSLATE_NOOP("views", "Work")},
    {Telephones, u"lblwph2", nullptr},
    {Telephones, u"lblwph3", nullptr},
    {Telephones, u"lblmobile", QT_TRANSLATE_NOOP("views", "Mobile")},
    {Telephones, u"lblspmobile", QT_TRANSLATE_NOOP("views", "Spouse")},
};

struct Group {
    const char* title;
    int stretch;
};

constexpr Group kGroups[] = {
    {QT_TRANSLATE_NOOP("views", "Person"), 5},
    {QT_TRANSLATE_NOOP("views", "Home"), 6},
    {QT_TRANSLATE_NOOP("views", "Work"), 6},
    {QT_TRANSLATE_NOOP("views", "Telephones"), 4},
};

QString translated(const char* text)
{
    return QCoreApplication::translate("views", text);
}

/// A text that is too long is cut off rather than that it moves the columns; its tool tip has it whole.
QLabel* shownText(QStringView name)
{
    auto* label = new QLabel;
    label->setObjectName(name.toString());
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

ResultDetail::ResultDetail(const platform::Drive& drive, QWidget* parent)
    : QFrame(parent)
    , m_drive(drive)
    , Picture1(new widgets::PictureBox)
{
    setFrameShape(QFrame::NoFrame);
    setMinimumWidth(kLeastWidth);
    Picture1->setObjectName(u"Picture1"_s);
    Picture1->setAccessibleName(tr("Picture"));
    Picture1->setFixedSize(kPictureSize);
    Picture1->setFocusPolicy(Qt::NoFocus);
    QLabel* name = shownText(u"lblname");
    name->setStyleSheet(u"font-size: 14pt; font-weight: 600;"_s);
    name->setMinimumHeight(2 * fontMetrics().height());
    auto* right = new QVBoxLayout;
    right->setSpacing(2);
    right->addWidget(name);
    right->addLayout(layOutTexts());
    right->addStretch(1);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(14);
    layout->addWidget(Picture1, 0, Qt::AlignTop);
    layout->addLayout(right, 1);
}

// Each column is two of the grid, of which an address takes both.
QLayout* ResultDetail::layOutTexts()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(1);
    int next[std::size(kGroups)] = {};
    for (int column = 0; column < int(std::size(kGroups)); ++column) {
        auto* title = new QLabel(translated(kGroups[column].title));
        title->setStyleSheet(u"font-weight: 600;"_s);
        grid->addWidget(title, next[column]++, 2 * column, 1, 2);
        grid->setColumnStretch(2 * column + 1, kGroups[column].stretch);
    }
    constexpr int Rows = 11;
    for (const Shown& shown : kShown) {
        QLabel* text = shownText(shown.name);
        const int row = next[shown.column]++;
        const int column = 2 * shown.column;
        if (shown.column == Home || shown.column == Work) {
            text->setAccessibleName(translated(kGroups[shown.column].title));
            grid->addWidget(text, row, column, Rows - row, 2);
            continue;
        }
        auto* label = new QLabel(shown.label ? translated(shown.label) : QString());
        label->setForegroundRole(QPalette::PlaceholderText);
        text->setAccessibleName(label->text());
        grid->addWidget(label, row, column);
        grid->addWidget(text, row, column + 1);
    }
    return grid;
}

void ResultDetail::display(const jet::Recordset& contact)
{
    for (const ShownText& shown : resultDetailTexts(contact)) {
        auto* label = widgets::child<QLabel>(this, shown.control);
        widgets::setTextOf(label, shown.text);
        label->setToolTip(widgets::tipOf(shown.text));
    }
    Picture1->setPath(core::photoFile(m_drive, contact.textOrEmpty(u"PhotLoc")));
}

} // namespace views
