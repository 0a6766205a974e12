#pragma once

namespace corvellane {

/// Makes this process independent of how it was started; to be called before anything is opened. A standard stream
/// that was closed leads nowhere, instead of into what is opened next; a reader of one that goes away does not end the
/// program; and how children end is heard of.
void setUpProcess();

} // namespace corvellane
