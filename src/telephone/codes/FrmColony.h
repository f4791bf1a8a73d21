#pragma once

#include "core/handover/word_picker.h"
#include "core/screen.h"

namespace telephone {

class WordLists;

/// The stored addresses and areas. An entry form waits here for one of them, in a dialog; opened by itself it
/// is a list to look into, from which one is copied.
class FrmColony : public core::Screen, public core::WordPicker {
    Q_OBJECT

public:
    explicit FrmColony(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override;
    bool hasWords(const QString& city, const QString& word) override;
    std::optional<QString> pickWord(const QString& city, const QString& word) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    WordLists* m_lists;
};

} // namespace telephone
