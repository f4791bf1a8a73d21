#pragma once

#include "core/handover/contact_screen.h"
#include "core/screen.h"

class QLabel;

namespace letters {

class LabelPanel;

/// Prints a sheet of labels for one person.
class FrmlblReport : public core::Screen, public core::ContactScreen {
    Q_OBJECT

public:
    explicit FrmlblReport(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    bool showContact(qint64 id) override;
    void bookChanged() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showPerson();
    void preview();

    qint64 m_id = 0;
    QString m_name; ///< by which a person without an id is found
    LabelPanel* m_panel;
    QLabel* lblName;
};

} // namespace letters
