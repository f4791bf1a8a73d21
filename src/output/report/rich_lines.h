#pragma once

#include "output/report/text_measure.h"

#include <vector>

namespace output {

/// Letters of a line that look alike.
struct RunOnLine {
    double x = 0; ///< from the left end of the column
    QString text = {};
    formats::CharStyle style = {};
};

/// A line of a text with looks, as it is set.
struct RichLine {
    std::vector<RunOnLine> runs = {};
    double height = 0;
    double ascent = 0;
    double wordSpace = 0; ///< added between words, so that a line is as wide as its column
    formats::TextParagraph::Align align = formats::TextParagraph::Align::Left;
    bool endsParagraph = true;
};

/// The lines that a text takes in a column. What is no letter, such as the mark of a list, is part of them.
std::vector<RichLine> richLines(
    const formats::RichText& text, TextRole role, const TextMeasure& measure, double width);

} // namespace output
