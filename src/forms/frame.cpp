#include "forms/frame.h"

namespace forms {

void Frame::setCaption(std::string_view caption) {
    caption_ = std::string(caption);
    tellPeer(Property::text);
}

} // namespace forms
