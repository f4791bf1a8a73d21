#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTextEdit;

namespace editor {

/// Finds and replaces in a text, in a strip above it. It is out of sight until it is asked for.
class FindStrip : public QWidget {
    Q_OBJECT

public:
    explicit FindStrip(QTextEdit* field);

    /// With what is selected, if that is short, as what is looked for.
    void open();

protected:
    bool event(QEvent* event) override;

private:
    QPushButton* addButton(
        const QString& name, const QString& text, QStringView icon, const QString& toolTip);
    void layOut();
    void find(bool backward);
    void replace();
    void replaceAll();
    void close();
    bool isFound() const; ///< what is looked for is what is selected
    void tellPlace();

    QTextEdit* m_field;
    QLineEdit* m_wanted;
    QLineEdit* m_other;
    QCheckBox* m_matchCase;
    QLabel* m_told;
    QPushButton* m_replace = nullptr;
    QPushButton* m_replaceAll = nullptr;
};

} // namespace editor
