#pragma once

#include <QComboBox>
#include <QStringList>

#include <functional>

namespace widgets {

class SuggestionList;

/// A combo whose values are read only when somebody looks at them: when the list drops down or the first key
/// is typed.
///
/// While a person types, the values that begin so stand below the field. Filling never changes the text in
/// the field, and the text typed stays as it was typed, whatever the list spells it. The wheel over a combo
/// without the focus scrolls the page. A combo that can not be typed into fills itself also to find the text
/// that it is given.
class FilledCombo : public QComboBox {
    Q_OBJECT

public:
    enum class Typing { Free, ListOnly };
    explicit FilledCombo(QWidget* parent = nullptr, Typing typing = Typing::Free);

    void setSource(std::function<QStringList()> source);
    void refill(); ///< the values are out of date: read them again when they are needed next
    void setValues(const QStringList& values);
    QStringList values(); ///< reads them when they have not been read

    /// Shows a text; in a list that can not be typed into, its row, or none.
    void setText(const QString& text);

    /// The values that begin as the text that was typed last.
    QStringList suggestions() const;

    void showPopup() override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ensureFilled();
    void showValues(const QStringList& values);
    void suggest(const QString& typed);
    void pick(int row);
    void followTypedText();

    std::function<QStringList()> m_source;
    bool m_stale = false;
    SuggestionList* m_suggestions = nullptr; ///< of a combo that can be typed into
};

} // namespace widgets
