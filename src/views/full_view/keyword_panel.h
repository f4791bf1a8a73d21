#pragma once

#include <QFrame>

class QLineEdit;

namespace views {

/// The keyword search above the list: one word, looked for in every field that is searched.
class KeywordPanel : public QFrame {
    Q_OBJECT

public:
    explicit KeywordPanel(QWidget* parent = nullptr);
    void open();

Q_SIGNALS:
    void searched(const QString& keyword);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLineEdit* txtkeyword;
};

} // namespace views
