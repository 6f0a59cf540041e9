#include "registry/KeyTree.h"

#include <QChar>

namespace Pal
{

std::u16string FoldCase(std::u16string_view name)
{
    std::u16string folded(name);
    for (char16_t& unit : folded)
        unit = static_cast<char16_t>(QChar::toUpper(uint{unit}));
    return folded;
}

KeyNode::KeyNode(std::u16string name) : ownName(std::move(name)) {}

std::shared_ptr<KeyNode> KeyNode::SubKey(std::u16string_view name) const
{
    const auto found = children.find(FoldCase(name));
    return found == children.end() ? nullptr : found->second;
}

std::shared_ptr<KeyNode> KeyNode::MakeSubKey(const std::u16string& name)
{
    std::shared_ptr<KeyNode>& child = children[FoldCase(name)];
    if (!child)
    {
        child = std::make_shared<KeyNode>(name);
        childCursor.Forget();
    }
    return child;
}

void KeyNode::RemoveSubKey(std::u16string_view name)
{
    const auto found = children.find(FoldCase(name));
    if (found == children.end())
        return;
    found->second->MarkDeleted();
    children.erase(found);
    childCursor.Forget();
}

const RegistryValue* KeyNode::Value(std::u16string_view name) const
{
    const auto found = valuesByName.find(FoldCase(name));
    return found == valuesByName.end() ? nullptr : &*found->second;
}

void KeyNode::SetValue(RegistryValue value)
{
    const auto [entry, added] = valuesByName.try_emplace(FoldCase(value.name), values.end());
    if (added)
    {
        entry->second = values.insert(values.end(), std::move(value));
        return;
    }
    entry->second->type = value.type;
    entry->second->data = std::move(value.data);
}

void KeyNode::RemoveValue(std::u16string_view name)
{
    const auto found = valuesByName.find(FoldCase(name));
    if (found == valuesByName.end())
        return;
    values.erase(found->second);
    valuesByName.erase(found);
    valueCursor.Forget();
}

void KeyNode::MarkDeleted()
{
    deleted = true;
    for (const auto& [name, child] : children)
        child->MarkDeleted();
}

std::shared_ptr<KeyNode> FindKey(const std::shared_ptr<KeyNode>& root, const KeyPath& path)
{
    std::shared_ptr<KeyNode> key = root;
    for (auto name = path.begin(); key && name != path.end(); ++name)
        key = key->SubKey(*name);
    return key;
}

std::shared_ptr<KeyNode> MakeKey(const std::shared_ptr<KeyNode>& root, const KeyPath& path)
{
    std::shared_ptr<KeyNode> key = root;
    for (const std::u16string& name : path)
        key = key->MakeSubKey(name);
    return key;
}

void RemoveKey(const std::shared_ptr<KeyNode>& root, const KeyPath& path)
{
    const KeyPath parent(path.begin(), std::prev(path.end()));
    if (const std::shared_ptr<KeyNode> key = FindKey(root, parent))
        key->RemoveSubKey(path.back());
}

} // namespace Pal
