#pragma once

namespace coltre {

/// Makes the pictures compiled into the windows' library known under ":/images/". More than once is the same
/// as once.
void load_pictures();

}  // namespace coltre
