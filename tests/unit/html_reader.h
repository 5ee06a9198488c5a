// A strict reader of HTML, for tests: what a browser would forgive is an error.
#pragma once

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "text/Utf8.h"

namespace tessera {

struct HtmlElement {
  std::string Name;
  std::map<std::string, std::string> Attributes;  ///< with entities replaced
  std::string Text;                               ///< of it and all within it, likewise
  std::size_t Parent = 0;                         ///< itself for the first element

  [[nodiscard]] bool Has(const std::string& attribute) const {
    return Attributes.contains(attribute);
  }

  [[nodiscard]] std::string Get(const std::string& attribute) const {
    return Has(attribute) ? Attributes.at(attribute) : "";
  }
};

struct HtmlPage {
  std::vector<HtmlElement> Elements;  ///< as they begin
  std::string Problem;                ///< the first one, and where it is; "" for none

  /// The elements of that name; with an attribute too, those where it has that value.
  [[nodiscard]] std::vector<const HtmlElement*> Find(std::string_view name,
                                                     const std::string& attribute = "",
                                                     std::string_view value = "") const {
    std::vector<const HtmlElement*> found;
    for (const HtmlElement& element : Elements) {
      if (element.Name != name) continue;
      if (attribute.empty() || (element.Has(attribute) && element.Get(attribute) == value)) {
        found.push_back(&element);
      }
    }
    return found;
  }

  /// True for an element within another one that has the id.
  [[nodiscard]] bool IsWithin(const HtmlElement& element, std::string_view id) const {
    const HtmlElement* each = &element;
    while (each->Get("id") != id) {
      const HtmlElement* const parent = &Elements[each->Parent];
      if (parent == each) return false;
      each = parent;
    }
    return true;
  }
};

class HtmlReader {
 public:
  explicit HtmlReader(std::string_view html) : rest_(html), size_(html.size()) {}

  HtmlPage Read() {
    if (!Skip("<!DOCTYPE html>\n")) Fail("no doctype");
    while (Goes() && !rest_.empty()) ReadNext();
    if (Goes() && !open_.empty()) Fail("not closed: " + page_.Elements[open_.back()].Name);
    if (Goes()) CheckReferences();
    return std::move(page_);
  }

 private:
  static bool IsNameCharacter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || character == '-';
  }

  static bool IsAllowed(char32_t character) {
    const bool isControl =
        (character < 0x20 && character != '\n') || (character >= 0x7F && character < 0xA0);
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    const bool isNone =
        (character >= 0xFDD0 && character <= 0xFDEF) || (character & 0xFFFE) == 0xFFFE;
    return !isControl && !isSurrogate && !isNone;
  }

  [[nodiscard]] bool Goes() const { return page_.Problem.empty(); }

  void Fail(const std::string& problem) {
    if (Goes()) page_.Problem = problem + " at " + std::to_string(size_ - rest_.size());
  }

  bool Skip(std::string_view text) {
    if (!rest_.starts_with(text)) return false;
    rest_.remove_prefix(text.size());
    return true;
  }

  std::string_view Take(std::size_t length) {
    const std::string_view taken = rest_.substr(0, length);
    rest_.remove_prefix(taken.size());
    return taken;
  }

  std::string TakeName() {
    const auto end = std::find_if_not(rest_.begin(), rest_.end(), IsNameCharacter);
    return std::string(Take(static_cast<std::size_t>(end - rest_.begin())));
  }

  void ReadNext() {
    if (Skip("</")) {
      ReadEndTag();
    } else if (Skip("<")) {
      ReadTag();
    } else {
      const std::string text = Decoded(Take(std::min(rest_.find('<'), rest_.size())));
      if (open_.empty() && text != "\n") Fail("text outside");
      for (const std::size_t element : open_) page_.Elements[element].Text += text;
    }
  }

  void ReadEndTag() {
    const std::string name = TakeName();
    if (open_.empty() || page_.Elements[open_.back()].Name != name || !Skip(">")) {
      Fail("wrong end of " + name);
    } else {
      open_.pop_back();
    }
  }

  void ReadTag() {
    constexpr std::string_view Void[] = {"meta", "input"};
    HtmlElement element;
    element.Name = TakeName();
    if (element.Name.empty()) Fail("no tag");
    element.Parent = open_.empty() ? 0 : open_.back();
    while (Goes() && Skip(" ")) ReadAttribute(element);
    const bool endsItself = Skip("/");
    if (endsItself && !IsWithinDrawing()) Fail("no such end");
    if (!Skip(">")) Fail("odd tag " + element.Name);
    const std::string name = element.Name;
    page_.Elements.push_back(std::move(element));
    if (endsItself || std::ranges::find(Void, name) != std::end(Void)) return;
    open_.push_back(page_.Elements.size() - 1);
    if (name == "style" || name == "script") SkipRawText("</" + name);
  }

  /// Only elements of drawings may end themselves.
  [[nodiscard]] bool IsWithinDrawing() const {
    return std::ranges::any_of(
        open_, [this](std::size_t each) { return page_.Elements[each].Name == "svg"; });
  }

  void SkipRawText(const std::string& end) {
    const std::string_view text = Take(std::min(rest_.find(end), rest_.size()));
    if (text.find("<!--") != std::string_view::npos) Fail("comment in raw text");
  }

  void ReadAttribute(HtmlElement& element) {
    const std::string name = TakeName();
    std::string value;
    if (name.empty()) Fail("no attribute");
    if (Skip("=")) {
      if (!Skip("\"")) Fail("no quotes around " + name);
      value = Decoded(Take(std::min(rest_.find('"'), rest_.size())));
      if (!Skip("\"")) Fail("no end of " + name);
    }
    if (name == "id" && !ids_.insert(value).second) Fail("a second " + value);
    if (name == "href") references_.insert(value);
    if (!element.Attributes.emplace(name, value).second) Fail("a second " + name);
  }

  std::string Decoded(std::string_view text) {
    struct Entity {
      std::string_view Name;
      char Character;
    };
    constexpr Entity Entities[] = {{"amp;", '&'}, {"lt;", '<'}, {"gt;", '>'}, {"quot;", '"'}};
    std::string decoded;
    while (!text.empty()) {
      const std::size_t sign = std::min(text.find('&'), text.size());
      decoded += text.substr(0, sign);
      text.remove_prefix(sign);
      if (text.empty()) break;
      text.remove_prefix(1);
      const auto* const entity = std::ranges::find_if(
          Entities, [text](const Entity& each) { return text.starts_with(each.Name); });
      if (entity == std::end(Entities)) {
        Fail("odd entity");
        break;
      }
      decoded += entity->Character;
      text.remove_prefix(entity->Name.size());
    }
    CheckCharacters(decoded);
    return decoded;
  }

  void CheckCharacters(const std::string& text) {
    const std::wstring wide = WideFromUtf8(text);
    if (Utf8FromWide(wide) != text) Fail("no UTF-8");
    for (std::size_t at = 0; at < wide.size();) {
      if (!IsAllowed(TakeCharacter(wide, at))) Fail("a character that is not allowed");
    }
  }

  void CheckReferences() {
    for (const std::string& reference : references_) {
      if (!reference.starts_with('#') || !ids_.contains(reference.substr(1))) {
        Fail("leads nowhere: " + reference);
      }
    }
  }

  std::string_view rest_;
  std::size_t size_;
  HtmlPage page_;
  std::vector<std::size_t> open_;
  std::set<std::string> ids_;
  std::set<std::string> references_;
};

/// A page in UTF-8: all elements closed, attributes in double quotes, ids unique, references to
/// them known, and no characters that HTML does not allow.
[[nodiscard]] inline HtmlPage ReadHtml(std::string_view html) { return HtmlReader(html).Read(); }

}  // namespace tessera
