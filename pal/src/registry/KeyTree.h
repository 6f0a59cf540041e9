// The keys and values of one registry root in memory. Names ignore case and keep the case they
// were made with; writing to an existing name keeps the case it has.
#pragma once

#include <iterator>
#include <list>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <windows.h>

namespace Pal
{

// The names of the keys from below the root to a key; empty for the root itself.
using KeyPath = std::vector<std::u16string>;

// Equal for names that differ in case only, and the order in which keys are listed.
std::u16string FoldCase(std::u16string_view name);

struct RegistryValue
{
    std::u16string name; // empty for the default value
    DWORD type = REG_NONE;
    std::string data; // as on disk: text is UTF-16LE with the zeros it was given
};

// Finds elements by number. Going through them in order costs one step each.
template <typename Container>
class IndexCursor
{
public:
    typename Container::const_iterator At(const Container& elements, size_t index)
    {
        if (!m_valid || index < m_index)
        {
            m_position = elements.begin();
            m_index = 0;
            m_valid = true;
        }
        std::advance(m_position, index - m_index);
        m_index = index;
        return m_position;
    }

    void Forget() { m_valid = false; }

private:
    typename Container::const_iterator m_position;
    size_t m_index = 0;
    bool m_valid = false;
};

class KeyNode
{
public:
    using Children = std::map<std::u16string, std::shared_ptr<KeyNode>>;
    using Values = std::list<RegistryValue>;

    explicit KeyNode(std::u16string name);
    KeyNode(const KeyNode&) = delete;
    KeyNode& operator=(const KeyNode&) = delete;

    const std::u16string& Name() const { return m_name; }
    bool Deleted() const { return m_deleted; }

    // Sub-keys, sorted by folded name.
    const Children& SubKeys() const { return m_children; }
    const KeyNode& SubKeyAt(size_t index) { return *m_childCursor.At(m_children, index)->second; }
    std::shared_ptr<KeyNode> SubKey(std::u16string_view name) const;
    std::shared_ptr<KeyNode> MakeSubKey(const std::u16string& name);
    void RemoveSubKey(std::u16string_view name);

    // Values, in the order in which they were made.
    const Values& AllValues() const { return m_values; }
    const RegistryValue& ValueAt(size_t index) { return *m_valueCursor.At(m_values, index); }
    const RegistryValue* Value(std::u16string_view name) const;
    void SetValue(RegistryValue value);
    void RemoveValue(std::u16string_view name);

private:
    void MarkDeleted();

    const std::u16string m_name;
    bool m_deleted = false;
    Children m_children;
    IndexCursor<Children> m_childCursor;
    Values m_values;
    IndexCursor<Values> m_valueCursor;
    std::unordered_map<std::u16string, Values::iterator> m_valuesByName;
};

// The key at the end of the path below root, or null.
std::shared_ptr<KeyNode> FindKey(const std::shared_ptr<KeyNode>& root, const KeyPath& path);

// The same; missing keys on the way are made.
std::shared_ptr<KeyNode> MakeKey(const std::shared_ptr<KeyNode>& root, const KeyPath& path);

// Removes the key at the end of the path with all below it. The path must not be empty.
void RemoveKey(const std::shared_ptr<KeyNode>& root, const KeyPath& path);

} // namespace Pal
