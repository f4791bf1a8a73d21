#pragma once

#include "core/context.h"
#include "entry/assists/city_scope.h"

#include <QWidget>

class QTabBar;

namespace widgets {
class KeyPad;
class RecordList;
} // namespace widgets

namespace entry {

/// The helper beside an entry form: known cities, first and last names and companies to pick from, and the
/// key pad. It reads its lists when they are in sight.
class AssistPanel : public QWidget {
    Q_OBJECT

public:
    enum class Tab { City, First, Last, Company };

    AssistPanel(jet::Database& info, const core::SharedState& shared, QWidget* parent = nullptr);

    /// Load of the form selects "All"; nothing is read before the panel is shown.
    void selectScope(CityScope scope);
    QString country() const;

Q_SIGNALS:
    void picked(entry::AssistPanel::Tab tab, const QString& value);
    /// The scope names a country for all address sets; their states are to be cleared. Empty for all
    /// countries.
    void scopeChosen(const QString& country);
    void keyPressed(const QString& caption);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void layOut();
    void fillValues();

    jet::Database& m_info;
    const core::SharedState& m_shared;
    QTabBar* SSActiveTabs1;
    CityScopePanel* m_cities;
    widgets::RecordList* CboFilter;
    widgets::KeyPad* m_keys;
};

} // namespace entry
