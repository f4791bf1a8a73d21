#pragma once

#include <QString>

namespace platform {

/// The desktop round the program: other programs that show a file or an address, the sibling programs of the
/// suite, and the end of this one. All answers are true when the thing was started.
class Shell {
public:
    Shell() = default;
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;
    virtual ~Shell() = default;

    /// Shows a document, named as the program knows it or by a path of this computer. Never runs a program.
    virtual bool openFile(QStringView path) = 0;
    /// Shows a web, mail or telephone address; one without a scheme counts as a web address.
    virtual bool openAddress(QStringView address) = 0;
    /// A sibling is named by its file in the program's folder, as `\Orvane Scheduler.exe`.
    virtual bool siblingExists(QStringView name) const = 0;
    /// With a document, the sibling opens that one; it is handed on as the book names it.
    virtual bool startSibling(QStringView name, const QString& document = {}) = 0;
    virtual void endProgram() = 0;
};

} // namespace platform
