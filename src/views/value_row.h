#pragma once

#include "views/ferrow_palette.h"

#include <QString>

namespace ferrow {

// A labelled figure as the views list them: the model picks the words and the value's colour.
struct ValueRow {
    QString label;
    QString value;
    ColorRole tint = ColorRole::primaryText;
};

} // namespace ferrow
