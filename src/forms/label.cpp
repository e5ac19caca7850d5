#include "forms/label.h"

#include "forms/event.h"

namespace forms {

void Label::click() {
    if (acceptsInput())
        raise(onClick);
}

void Image::click() {
    if (acceptsInput())
        raise(onClick);
}

} // namespace forms
