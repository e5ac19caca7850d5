// How these tests end by an error that nothing has handled: the box is shown as the program shows it, and
// what the program ends with is thrown instead, as natively.
#pragma once

namespace contract {

struct EndedByError {};

} // namespace contract
