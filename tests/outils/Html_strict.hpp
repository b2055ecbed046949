// A strict reader of HTML notes: what a browser forgives is a fault here.
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Faults of a note, none if it is sound:
///   (1) every element that opens closes, in order; meta and br stand alone
///   (2) an id or an anchor name stands once
///   (3) every link "#name" has its target
///   (4) bytes are ASCII: characters beyond are decimal references
std::vector<std::string> fautes_html(std::string_view note);

/// Text that a reader of the note sees: no tags, no comments, no styles and scripts; references are Latin-1.
std::string texte_visible(std::string_view note);

/// Files that the note links to or includes, in order.
std::vector<std::string> fichiers_lies(std::string_view note);
