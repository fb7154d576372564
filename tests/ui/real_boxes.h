#pragma once

namespace coltre {

/// Whether the running test opens real message boxes; one that opens unannounced fails the test.
bool& real_boxes_expected();

}  // namespace coltre
