// Reading and writing NAME.kpj without exceptions: parse errors come back with a line and column.
#include "cli/kpj_project.h"

#include <cstring>
#include <limits>

#include "foundation/os.h"
#include "foundation/text_encoding.h"

namespace {

using Json = nlohmann::ordered_json;

// Line and column of a byte offset, both 1-based.
std::string position(const std::string& text, size_t offset) {
  size_t line = 1;
  size_t column = 1;
  for (size_t i = 0; i < offset && i < text.size(); ++i) {
    if (text[i] == '\n') {
      ++line;
      column = 1;
    } else {
      ++column;
    }
  }
  return std::to_string(line) + ":" + std::to_string(column);
}

// Collects the first syntax error instead of throwing.
class ErrorCatcher : public nlohmann::json_sax<Json> {
 public:
  bool null() override { return true; }
  bool boolean(bool) override { return true; }
  bool number_integer(number_integer_t) override { return true; }
  bool number_unsigned(number_unsigned_t) override { return true; }
  bool number_float(number_float_t, const string_t&) override { return true; }
  bool string(string_t&) override { return true; }
  bool binary(binary_t&) override { return true; }
  bool start_object(std::size_t) override { return true; }
  bool key(string_t&) override { return true; }
  bool end_object() override { return true; }
  bool start_array(std::size_t) override { return true; }
  bool end_array() override { return true; }
  bool parse_error(std::size_t offset, const std::string&, const nlohmann::detail::exception& ex) override {
    where = offset;
    const char* what = ex.what();
    const char* detail = std::strstr(what, ": ");
    message = detail ? detail + 2 : what;
    return false;
  }

  size_t where = 0;
  std::string message;
};

// Arrays and objects nested deeper than this are refused before parsing: the
// node reader and the JSON library's copies and dumps recurse once per level.
constexpr int kMaxNesting = 256;

// The offset of the first bracket that opens level kMaxNesting + 1, or npos.
// Strings and comments are skipped as the parser skips them.
size_t tooDeepAt(const std::string& text) {
  int depth = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    char c = text[i];
    if (c == '"') {
      for (++i; i < text.size() && text[i] != '"'; ++i)
        if (text[i] == '\\') ++i;
    } else if (c == '/' && i + 1 < text.size() && text[i + 1] == '/') {
      i = text.find('\n', i);
      if (i == std::string::npos) break;
    } else if (c == '/' && i + 1 < text.size() && text[i + 1] == '*') {
      i = text.find("*/", i + 2);
      if (i == std::string::npos) break;
      ++i;
    } else if (c == '[' || c == '{') {
      if (++depth > kMaxNesting) return i;
    } else if (c == ']' || c == '}') {
      --depth;
    }
  }
  return std::string::npos;
}

// The document's own name and type are not read: the top node's are the project file's.
bool readNode(const Json& value, bool isTop, ProjectNode* node, std::string* why) {
  if (!value.is_object()) {
    *why = "a node must be an object";
    return false;
  }
  struct Field {
    const char* key;
    std::string* target;
  } fields[] = {{"name", &node->name},
                {"type", &node->type},
                {"description", &node->description},
                {"include_path", &node->includePath},
                {"source_path", &node->sourcePath}};
  for (const Field& field : fields) {
    if (isTop && (field.target == &node->name || field.target == &node->type)) continue;
    auto found = value.find(field.key);
    if (found == value.end()) continue;
    if (!found->is_string()) {
      *why = std::string("\"") + field.key + "\" must be a string";
      return false;
    }
    *field.target = found->get<std::string>();
  }
  auto children = value.find("nodes");
  if (children == value.end()) return true;
  if (!children->is_array()) {
    *why = "\"nodes\" must be an array";
    return false;
  }
  node->nodes.reserve(children->size());
  for (const Json& child : *children) {
    node->nodes.emplace_back();
    if (!readNode(child, false, &node->nodes.back(), why)) return false;
  }
  return true;
}

}  // namespace

std::string KpjProject::emptyText() { return "{\n  \"nodes\": [],\n  \"options\": {}\n}\n"; }

bool KpjProject::load(const std::string& path, std::string* err) {
  std::string text;
  if (!os().readFile(path, &text, err)) return false;
  return parse(path, text, err);
}

bool KpjProject::parse(const std::string& path, const std::string& text, std::string* err) {
  path_ = path;
  crLfLines_ = usesCrLfLines(text);
  size_t deep = tooDeepAt(text);
  if (deep != std::string::npos) {
    if (err) *err = path + ":" + position(text, deep) + ": nested deeper than " + std::to_string(kMaxNesting) + " levels";
    return false;
  }
  document_ = Json::parse(text, nullptr, false, true);
  if (document_.is_discarded()) {
    // Parse again with a handler that keeps the error's offset.
    ErrorCatcher catcher;
    Json::sax_parse(text, &catcher, nlohmann::detail::input_format_t::json, true, true);
    if (err) *err = path + ":" + position(text, catcher.where > 0 ? catcher.where - 1 : 0) + ": " + catcher.message;
    return false;
  }
  if (!document_.is_object()) {
    if (err) *err = path + ":1:1: a project file holds one JSON object";
    return false;
  }
  if (!readRoot(err)) return false;
  if (document_.contains("options") && !document_["options"].is_object()) {
    if (err) *err = path + ": \"options\" must be an object";
    return false;
  }
  return true;
}

bool KpjProject::readRoot(std::string* err) {
  // The document itself is the project's top node: its directory options are
  // what every node inherits; its name is always the project file's.
  root_ = ProjectNode();
  std::string why;
  if (!readNode(document_, true, &root_, &why)) {
    if (err) *err = path_ + ": " + why;
    return false;
  }
  root_.name = fileNameOf(path_);
  root_.type = ".kpj";
  return true;
}

namespace {

// The "nodes" array of the first node named name, depth-first below holder.
Json* childrenOfNodeNamed(Json& holder, const std::string& name) {
  if (!holder.contains("nodes")) return nullptr;
  for (Json& node : holder["nodes"]) {
    if (node.value("name", "") == name) return &node["nodes"];  // null until the first child, then an array
    if (Json* found = childrenOfNodeNamed(node, name)) return found;
  }
  return nullptr;
}

// Erases the first node named name below holder; false when none.
bool eraseNodeNamed(Json& holder, const std::string& name) {
  if (!holder.contains("nodes")) return false;
  Json& nodes = holder["nodes"];
  for (size_t i = 0; i < nodes.size(); ++i) {
    if (nodes[i].value("name", "") == name) {
      nodes.erase(i);
      return true;
    }
    if (eraseNodeNamed(nodes[i], name)) return true;
  }
  return false;
}

}  // namespace

bool KpjProject::addNode(const std::string& parent, const std::string& name, const std::string& type,
                         std::string* err) {
  Json* children = parent.empty() || parent == root_.name ? &document_["nodes"] : childrenOfNodeNamed(document_, parent);
  if (!children) {
    if (err) *err = "no node named " + parent + " in " + path_;
    return false;
  }
  Json node = Json::object();
  node["name"] = name;
  node["type"] = type;
  children->push_back(node);
  return readRoot(err);
}

bool KpjProject::removeNode(const std::string& name, std::string* err) {
  if (!eraseNodeNamed(document_, name)) {
    if (err) *err = "no node named " + name + " in " + path_;
    return false;
  }
  return readRoot(err);
}

bool KpjProject::save(std::string* err) {
  const std::string text = document_.dump(2) + "\n";
  return os().writeFileAtomic(path_, crLfLines_ ? withCrLfLines(text) : text, err);
}

namespace {

// The child positions that lead from node to wanted; false when wanted is not below node.
bool pathTo(const ProjectNode& node, const ProjectNode* wanted, std::vector<size_t>* path) {
  if (&node == wanted) return true;
  for (size_t i = 0; i < node.nodes.size(); ++i) {
    path->push_back(i);
    if (pathTo(node.nodes[i], wanted, path)) return true;
    path->pop_back();
  }
  return false;
}

}  // namespace

const ProjectNode* KpjProject::addNodeUnder(const ProjectNode& parent, const std::string& name,
                                             const std::string& type) {
  std::vector<size_t> path;
  if (!pathTo(root_, &parent, &path)) return nullptr;
  Json* holder = &document_;
  for (size_t i : path) holder = &(*holder)["nodes"][i];
  Json node = Json::object();
  node["name"] = name;
  // The IDE's default type is the file's extension; without one, a delivery
  // group of type "" would be made that nothing can set.
  const std::string file = fileNameOf(name);
  const size_t dot = file.rfind('.');
  const std::string extension = dot == std::string::npos ? std::string() : file.substr(dot);
  node["type"] = type.empty() ? extension : type;
  (*holder)["nodes"].push_back(node);
  if (!readRoot(nullptr)) return nullptr;
  const ProjectNode* added = &root_;
  for (size_t i : path) added = &added->nodes[i];
  return &added->nodes.back();
}

bool KpjProject::get(const std::string& name, std::string* bytes) {
  auto options = document_.find("options");
  if (options == document_.end() || !options->is_object()) return false;
  auto value = options->find(name);
  if (value == options->end()) return false;
  if (value->is_number_integer()) {
    long long number = value->get<long long>();
    if (number < std::numeric_limits<int32_t>::min() || number > std::numeric_limits<uint32_t>::max()) return false;
    *bytes = encodeIntegerOption(static_cast<int32_t>(static_cast<uint32_t>(number)));
    return true;
  }
  if (value->is_string()) {
    *bytes = value->get<std::string>();
    bytes->push_back('\0');
    return true;
  }
  return false;
}

bool KpjProject::set(const std::string& name, const std::string& bytes) {
  const ProjectOptionInfo* info = findProjectOption(name);
  bool isInteger = info ? info->isInteger : (bytes.size() == 4 && bytes.back() != '\0');
  Json& options = document_["options"];
  if (isInteger) {
    int32_t value = 0;
    if (!decodeIntegerOption(bytes, &value)) return false;
    options[name] = value;
  } else {
    options[name] = std::string(bytes.c_str());
  }
  return true;
}
