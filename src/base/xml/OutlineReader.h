// Reads the elements of an OPML file one after the other: as much of XML as such files have, and no more. No
// entities but the five of XML and character numbers; no external anything.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

struct XmlElement {
  struct Attribute {
    std::string_view name;
    std::string value;  // references replaced
  };
  std::string_view name;
  std::vector<Attribute> attributes;
  bool isEnd = false;    // "</name>"
  bool isEmpty = false;  // "<name/>": no end follows

  // The first of the attributes with one of these names that is there and not empty; letter case ignored.
  std::string Value(std::initializer_list<std::string_view> names) const;
};

class OutlineReader {
 public:
  // `text` must outlive the reader and its elements.
  explicit OutlineReader(std::string_view text) : rest_(text) {}

  // The next start or end tag; comments, instructions, CDATA and declarations are passed over. Nothing at the
  // end of the text and at the first damage.
  std::optional<XmlElement> Next();
  // The text between the last tag and the next, references replaced, blanks and line ends at its ends cut.
  std::string TextAhead() const;
  bool Damaged() const { return damaged_; }

 private:
  bool SkipTo(std::string_view end);
  bool SkipMarkup();
  std::string_view TakeName();
  void SkipBlanks();
  bool ReadAttributes(XmlElement& element);
  bool ReadAttribute(XmlElement& element);

  std::string_view rest_;
  bool damaged_ = false;
};

// `text` with its markup characters as references; control characters become blanks.
std::string XmlText(std::string_view text);

}  // namespace sonaro
