#pragma once

#include <QPrinter>
#include <functional>
#include <memory>

#include "platform/services.h"

namespace wb::desktop {

/// The printer, which is made when it is first asked for, since asking for printers takes a while. Where none is set up
/// the print dialog offers a PDF file.
class QtPrinter : public platform::Printer {
public:
    /// The name of what is printed; a report has none of its own.
    std::function<QString()> title;
    void print(const std::string& text) override;
    QPrinter& device();

private:
    std::unique_ptr<QPrinter> device_;
};

/// Lines of text on the pages of a device, in a fixed-pitch face that lets a report's line fit the width, with title
/// and page numbers at the foot. Lines end at CR LF; longer ones go on in the next, and break between words.
void printText(const std::string& text, const QString& title, QPagedPaintDevice& device);

} // namespace wb::desktop
