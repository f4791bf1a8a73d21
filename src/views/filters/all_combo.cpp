#include "views/filters/all_combo.h"

#include "core/vocabularies.h"
#include "views/filters/chosen_value.h"
#include "widgets/filled_combo.h"

#include <QEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTimer>

namespace views {

namespace {

class AllTaker : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* combo = static_cast<QComboBox*>(watched);
        if (event->type() == QEvent::FocusIn && combo->currentText() == kAll) {
            QTimer::singleShot(0, combo, [combo] {
                if (combo->hasFocus())
                    combo->lineEdit()->selectAll();
            });
        }
        return false;
    }
};

} // namespace

QStringList valuesWithAll(jet::Database& book, const QString& sql)
{
    QStringList values = core::firstColumn(book, sql);
    values.removeIf([](const QString& value) { return value.trimmed().isEmpty(); });
    values.prepend(kAll.toString());
    return values;
}

// While a choice is being typed it has nothing yet, which says nothing about the other; and a "*" stands for
// values that can not be told from here.
void followChoice(widgets::FilledCombo* combo, widgets::FilledCombo* narrowing)
{
    QObject::connect(narrowing, &QComboBox::editTextChanged, combo, [combo, narrowing](const QString& text) {
        combo->refill();
        const QString value = combo->currentText();
        if (!isChosen(value) || value.contains(u'*'))
            return;
        const QStringList offered = combo->values();
        const bool isTyping = offered.size() <= 1 && !narrowing->values().contains(text, Qt::CaseInsensitive);
        if (isTyping || offered.contains(value, Qt::CaseInsensitive))
            return;
        const QSignalBlocker quiet(combo);
        combo->setText(kAll.toString());
    });
}

void takeAllWhole(widgets::FilledCombo* combo)
{
    combo->installEventFilter(new AllTaker(combo));
}

} // namespace views
