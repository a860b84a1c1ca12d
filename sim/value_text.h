// value_text: values of the tree as lines "PATH#VALUE", for the files of setups.
#pragma once
#include <string>
#include <vector>

// All that stands below the trees, lists row by row. With a unit's word, only paths with that
// word; with "!" before it, only those without.
std::string ValueText_Write(const std::vector<std::string>& trees, const std::string& word);
// Bring them back and tell who follows. What the text doesn't name gets its default; paths outside
// the trees are left alone.
void ValueText_Load(const std::string& text, const std::vector<std::string>& trees,
                    const std::string& word);
