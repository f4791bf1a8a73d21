#include "telephone/lists/slot_ticks.h"

#include "telephone/number_slots.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

struct Group {
    const char* caption;
    int slots;
    int row;
    int column; ///< 0 left, 1 right
};
constexpr Group kGroups[] = {
    {QT_TRANSLATE_NOOP("telephone::SlotTicks", "Home"), 3, 0, 0},
    {QT_TRANSLATE_NOOP("telephone::SlotTicks", "Work 1"), 3, 0, 1},
    {QT_TRANSLATE_NOOP("telephone::SlotTicks", "Work 2"), 3, 3, 0},
    {QT_TRANSLATE_NOOP("telephone::SlotTicks", "Mobile"), 1, 3, 1},
    {QT_TRANSLATE_NOOP("telephone::SlotTicks", "Sp.Mob"), 1, 4, 1},
    {QT_TRANSLATE_NOOP("telephone::SlotTicks", "Fax"), 1, 5, 1},
};
constexpr QStringView kSampleNumber = u"022 234567890";
constexpr int kCellsOfAGroup = 3; // caption, tick, number

} // namespace

SlotTicks::SlotTicks(QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(6);
    layout->setVerticalSpacing(2);
    int slot = 0;
    for (const Group& group : kGroups) {
        const int column = group.column * kCellsOfAGroup;
        auto* caption = new QLabel(tr(group.caption));
        caption->setForegroundRole(QPalette::PlaceholderText);
        layout->addWidget(caption, group.row, column);
        layout->setColumnStretch(column + 2, 1);
        for (int i = 0; i < group.slots; ++i, ++slot) {
            const QString tag = numberSlots()[size_t(slot)].tag.toString();
            auto* tick = new QCheckBox(tag);
            tick->setObjectName(u"Ckh1_%1"_s.arg(slot + 1));
            tick->setToolTip(tr("Take this number into the list"));
            auto* number = new QLabel;
            number->setObjectName(u"lblph1_%1"_s.arg(slot + 1));
            number->setAccessibleName(tr("Number %1").arg(tag));
            number->setTextFormat(Qt::PlainText);
            number->setTextInteractionFlags(Qt::TextSelectableByMouse);
            number->setMinimumWidth(number->fontMetrics().horizontalAdvance(kSampleNumber.toString()));
            number->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
            layout->addWidget(tick, group.row + i, column + 1);
            layout->addWidget(number, group.row + i, column + 2);
            m_ticks.push_back(tick);
            m_numbers.push_back(number);
        }
    }
}

void SlotTicks::show(const std::function<QString(const QString& column)>& read)
{
    for (size_t slot = 0; slot < m_numbers.size(); ++slot) {
        const QString number = read ? read(numberSlots()[slot].column.toString()) : QString();
        m_numbers[slot]->setText(number);
        m_ticks[slot]->setAccessibleDescription(number);
    }
}

QList<TaggedNumber> SlotTicks::ticked() const
{
    QList<TaggedNumber> numbers;
    for (size_t slot = 0; slot < m_numbers.size(); ++slot) {
        if (m_ticks[slot]->isChecked())
            numbers << TaggedNumber{numberSlots()[slot].tag.toString(), m_numbers[slot]->text()};
    }
    return numbers;
}

} // namespace telephone
