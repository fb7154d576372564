#pragma once

#include <string_view>

namespace coltre {

/// What both programs say on --version, behind their name: "1.1.0 (build 1a2b3c4d, 2026-11-21)", with the
/// commit that they were built from and its date in UTC. "con modifiche" follows the commit where the tree
/// held changes besides; "senza commit" stands in its place where the sources were not a tree of git's.
std::string_view version_and_build();

}  // namespace coltre
