// A small XML document for settings files and benches.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct _xmlDoc;   // NOLINT(bugprone-reserved-identifier): the name that libxml2 gives it
struct _xmlNode;  // NOLINT(bugprone-reserved-identifier)

namespace mortane {

struct DomAttribute {
  std::string name;
  std::string value;
};

// A node of a DomDocument, which owns it. Cheap to copy; valid as long as the document lives.
// Text and comments are nodes too; they have no attributes.
class DomNode {
 public:
  DomNode() = default;
  explicit DomNode(_xmlNode* node) : node_(node) {}

  bool IsElement() const;
  std::string Name() const;
  // In the order of the file, values whole: no blank is trimmed.
  std::vector<DomAttribute> Attributes() const;
  std::vector<DomNode> Children() const;

  // Attributes are written in the order in which they were set first. Raises a Failure for a
  // name that is none in XML and for a value with characters that XML cannot hold.
  void SetAttribute(std::string_view name, std::string_view value);
  // Appends a node that DomDocument::CreateElement made.
  void Append(DomNode child);

 private:
  friend class DomDocument;
  _xmlNode* node_ = nullptr;
};

// Reads UTF-8, UTF-16 and declared encodings, with or without a byte-order mark. Refuses what
// is not well formed, declared entities and attribute defaults (both can make a small file fill
// the memory); follows nothing outside the file.
// Writes UTF-8 with no declaration and no white space of its own: the same content always gives
// the same bytes.
class DomDocument {
 public:
  DomDocument();
  ~DomDocument();
  DomDocument(DomDocument&&) noexcept;
  DomDocument& operator=(DomDocument&&) noexcept;

  // Replaces the content. False, with an empty document, when the file cannot be read or is
  // not well formed.
  bool Load(const std::string& path);
  bool LoadText(std::string_view bytes);

  // Why the last Load returned false, in one line for the user.
  const std::string& Problem() const { return problem_; }

  // Raises a Failure for a name that is none in XML.
  DomNode CreateElement(std::string_view name);
  void Append(DomNode root);
  std::vector<DomNode> Children() const;

  // Raises a Failure when writing fails; the file that was there is then still whole.
  void Save(const std::string& path) const;
  std::string ToText() const;

 private:
  struct Free {
    void operator()(_xmlDoc* document) const;
  };
  void FreeLoose() noexcept;

  std::unique_ptr<_xmlDoc, Free> document_;
  std::vector<_xmlNode*> loose_;  // made by CreateElement; freed here unless they got a parent
  std::string problem_;
};

}  // namespace mortane
