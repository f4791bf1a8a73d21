#pragma once

#include "views/full_view/FullView.h"

namespace views {

class SourceTools;
enum class Source;

/// The smart view: the full view, which can also browse the mail client's contacts, a folder of vCard files
/// and the address book of a second mail client. Only the own book can be changed here.
class FullViewWeb : public FullView {
    Q_OBJECT

public:
    explicit FullViewWeb(core::Context& context, QWidget* parent = nullptr);

private:
    void makeLabelTools();
    void choose(Source source);
    void chooseCards();
    void chooseFolder();
    void prepareMenu(QMenu* menu);

    SourceTools* m_sources;
};

} // namespace views
