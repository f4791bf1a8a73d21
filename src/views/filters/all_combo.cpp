#include "views/filters/all_combo.h"

#include "core/vocabularies.h"
#include "views/search/search_clauses.h"
#include "widgets/filled_combo.h"

#include <QEvent>
#include <QLineEdit>
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

void takeAllWhole(widgets::FilledCombo* combo)
{
    combo->installEventFilter(new AllTaker(combo));
}

} // namespace views
