#include "telephone/dialer/number_panel.h"

#include "telephone/dialer/number_button.h"
#include "telephone/number_slots.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

constexpr int kNumbers = 11; ///< without the fax number
constexpr int kInARow = 3;

struct CodeRow {
    const char* title;
    int code; ///< which of lblhstd stands there
};
constexpr CodeRow kRows[] = {
    {QT_TRANSLATE_NOOP("telephone::NumberPanel", "Home"), 0},
    {QT_TRANSLATE_NOOP("telephone::NumberPanel", "Work 1"), 2},
    {QT_TRANSLATE_NOOP("telephone::NumberPanel", "Work 2"), 1},
    {QT_TRANSLATE_NOOP("telephone::NumberPanel", "Mobile"), -1},
};
constexpr QStringView kCodes[] = {u"h_std", u"B_std", u"W_std"};

} // namespace

NumberPanel::NumberPanel(QWidget* parent)
    : QWidget(parent)
{
    for (int i = 0; i < int(std::size(kCodes)); ++i) {
        auto* code = new QLabel(this);
        code->setObjectName(u"lblhstd_%1"_s.arg(i + 1));
        code->setTextFormat(Qt::PlainText);
        code->setToolTip(tr("Area code"));
        code->setMinimumWidth(fontMetrics().averageCharWidth() * 7);
        m_codes << code;
    }
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(3);
    for (int i = 0; i < kNumbers; ++i) {
        const CodeRow& row = kRows[i / kInARow];
        if (i % kInARow == 0) {
            grid->addWidget(new QLabel(tr(row.title)), i / kInARow, 0);
            if (row.code >= 0)
                grid->addWidget(m_codes[row.code], i / kInARow, 1);
        }
        auto* number = new NumberButton(u"lblhph_%1"_s.arg(i + 1));
        number->setEnabled(false);
        number->setAccessibleName(tr("%1, number %2").arg(tr(row.title)).arg(i % kInARow + 1));
        connect(number, &QPushButton::clicked, this, [this, i] { Q_EMIT clicked(i); });
        grid->addWidget(number, i / kInARow, 2 + i % kInARow);
        m_numbers << number;
    }
    for (int column = 2; column < 2 + kInARow; ++column)
        grid->setColumnStretch(column, 1);
}

void NumberPanel::show(const ColumnText& contact)
{
    for (int i = 0; i < kNumbers; ++i) {
        m_numbers[i]->setValue(contact(numberSlots()[i].column));
        m_numbers[i]->setEnabled(!m_numbers[i]->value().isEmpty());
    }
    for (int i = 0; i < m_codes.size(); ++i)
        m_codes[i]->setText(contact(kCodes[i]));
}

} // namespace telephone
