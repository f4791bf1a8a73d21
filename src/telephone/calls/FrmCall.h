#pragma once

#include "core/screen.h"
#include "telephone/calls/pending_work.h"

class QCheckBox;
class QLabel;

namespace core {
class ToolSet;
}

namespace widgets {
class FilledCombo;
}

namespace telephone {

/// A small list of who is to be called, mailed and written to. A tick means done. Each entry is stored at
/// once.
class FrmCall : public core::Screen {
    Q_OBJECT

public:
    explicit FrmCall(core::Context& context, QWidget* parent = nullptr);
    ~FrmCall() override;

    void load() override;
    void bookChanged() override;
    bool isTouched() const override; ///< a name that could not be stored
    bool mayClose() override; ///< what stands in a field is stored first

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addLine(class QGridLayout* grid, int kind, int line);
    QWidget* layOutKind(int kind);
    widgets::FilledCombo* nameBox(int kind, int line) const;
    QCheckBox* tickBox(int kind, int line) const;

    void show(const jet::Recordset& row);
    PendingList list() const;
    void storeName(int kind, int line);
    void storeNames();
    void storeTick(int kind, int line);
    bool store(const QString& column, const QVariant& value);
    void follow(int kind, int line);

    void handOver(int kind, int line);
    bool writeText(const QString& path);
    void copyToDesktop();
    void generateText();
    void deleteAll();

    core::ToolSet* m_tools;
    QLabel* m_hint;
    PendingList m_stored;
};

} // namespace telephone
