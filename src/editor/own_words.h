#pragma once

class QWidget;

namespace platform {
class Speller;
}

namespace editor {

/// Shows the words that the person has added to the dictionary, to take some of them away again.
void showOwnWords(platform::Speller& speller, QWidget* over);

} // namespace editor
