// The keys and values of one registry root in memory. Names are compared without case; a key or
// value keeps the case with which it was created.
#pragma once

#include <windows.h>

#include <iterator>
#include <list>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Pal
{

// The names of the keys from below the root to a key; empty for the root itself.
using KeyPath = std::vector<std::u16string>;

// Equal for names that differ in case only. Keys are listed in the order of their folded names.
// Folds by Unicode upper case; the table of Windows leaves some characters unchanged, such as
// U+0131 and U+017F.
std::u16string FoldCase(std::u16string_view name);

struct RegistryValue
{
    std::u16string name; // empty for the default value
    DWORD type = REG_NONE;
    std::string data; // as on disk: text is UTF-16LE, with the zeros of the caller
};

// Finds elements by index. Access in ascending order costs one step per element.
template <typename Container>
class IndexCursor
{
public:
    typename Container::const_iterator At(const Container& elements, size_t wanted)
    {
        if (!valid || wanted < index)
        {
            position = elements.begin();
            index = 0;
            valid = true;
        }
        std::advance(position, wanted - index);
        index = wanted;
        return position;
    }

    void Forget() { valid = false; }

private:
    typename Container::const_iterator position;
    size_t index = 0;
    bool valid = false;
};

class KeyNode
{
public:
    using Children = std::map<std::u16string, std::shared_ptr<KeyNode>>;
    using Values = std::list<RegistryValue>;

    explicit KeyNode(std::u16string name);
    KeyNode(const KeyNode&) = delete;
    KeyNode& operator=(const KeyNode&) = delete;

    const std::u16string& Name() const { return ownName; }
    bool Deleted() const { return deleted; }

    // Sub-keys, sorted by folded name.
    const Children& SubKeys() const { return children; }
    const KeyNode& SubKeyAt(size_t index) { return *childCursor.At(children, index)->second; }
    std::shared_ptr<KeyNode> SubKey(std::u16string_view name) const;
    std::shared_ptr<KeyNode> MakeSubKey(const std::u16string& name);
    void RemoveSubKey(std::u16string_view name);

    // Values, in the order of creation.
    const Values& AllValues() const { return values; }
    const RegistryValue& ValueAt(size_t index) { return *valueCursor.At(values, index); }
    const RegistryValue* Value(std::u16string_view name) const;
    void SetValue(RegistryValue value);
    void RemoveValue(std::u16string_view name);

private:
    void MarkDeleted();

    const std::u16string ownName;
    bool deleted = false;
    Children children;
    IndexCursor<Children> childCursor;
    Values values;
    IndexCursor<Values> valueCursor;
    std::unordered_map<std::u16string, Values::iterator> valuesByName;
};

// The key at the end of the path below root, or null.
std::shared_ptr<KeyNode> FindKey(const std::shared_ptr<KeyNode>& root, const KeyPath& path);

// The same; missing keys of the path are created.
std::shared_ptr<KeyNode> MakeKey(const std::shared_ptr<KeyNode>& root, const KeyPath& path);

// Removes the key at the end of the path with all below it. The path must not be empty.
void RemoveKey(const std::shared_ptr<KeyNode>& root, const KeyPath& path);

} // namespace Pal
