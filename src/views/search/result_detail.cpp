#include "views/search/result_detail.h"

#include "core/photo_file.h"
#include "jet/recordset.h"
#include "views/contact_pages/record_texts.h"
#include "widgets/fields.h"
#include "widgets/long_text.h"
#include "widgets/picture_box.h"
#include "widgets/wrapping_row.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr QSize kPictureSize{92, 116};
constexpr int kLeastGroup = 170; ///< as wide as a block must be, to stand beside others

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

/// A text wraps rather than that it moves the columns.
QLabel* shownText(QStringView name)
{
    auto* label = new QLabel;
    label->setObjectName(name.toString());
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setWordWrap(true);
    label->setMinimumWidth(1);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QGridLayout* addBlock(widgets::WrappingRow* blocks, int stretch)
{
    auto* block = new QWidget;
    block->setMinimumWidth(kLeastGroup);
    auto* layout = new QVBoxLayout(block);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(1);
    grid->setColumnStretch(1, 1);
    layout->addLayout(grid);
    layout->addStretch(1);
    blocks->add(block, stretch);
    return grid;
}

} // namespace

ResultDetail::ResultDetail(const platform::Drive& drive, QWidget* parent)
    : QFrame(parent)
    , m_drive(drive)
    , Picture1(new widgets::PictureBox)
{
    setFrameShape(QFrame::NoFrame);
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

// As many blocks side by side as there is room for, the two addresses in one. A label stands before its text,
// an address takes both columns.
QLayout* ResultDetail::layOutTexts()
{
    auto* blocks = new widgets::WrappingRow;
    blocks->setSpacing(14);
    QGridLayout* grid = nullptr;
    int group = -1;
    for (const Shown& shown : kShown) {
        const bool isAddress = shown.column == Home || shown.column == Work;
        const QString title = translated(kGroups[shown.column].title);
        if (std::exchange(group, shown.column) != shown.column) {
            if (shown.column != Work)
                grid = addBlock(blocks, kGroups[shown.column].stretch);
            auto* heading = new QLabel(title);
            heading->setStyleSheet(u"font-weight: 600;"_s);
            grid->addWidget(heading, grid->rowCount(), 0, 1, 2);
        }
        QLabel* text = shownText(shown.name);
        const int row = grid->rowCount();
        if (isAddress) {
            text->setAccessibleName(title);
            grid->addWidget(text, row, 0, 1, 2);
            continue;
        }
        auto* label = new QLabel(shown.label ? translated(shown.label) : QString());
        label->setForegroundRole(QPalette::PlaceholderText);
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        text->setAccessibleName(label->text());
        grid->addWidget(label, row, 0);
        grid->addWidget(text, row, 1);
    }
    return blocks;
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
