#pragma once

#include <Qiv/Common/Serialization/Export.h>
#include <Qiv/Common/Serialization/Json/Details/JsonForm.h>
#include <Qiv/Common/Serialization/Json/Details/KeyTable.h>
#include <Qiv/Common/Serialization/Json/Details/ValueView.h>
#include <Qiv/Common/Serialization/Result.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace Qiv::Common::Serialization::Json::Details
{

/// The failure "Invalid type X : Y expected".
[[gnu::cold]] QIV_COMMON_SERIALIZATION_EXPORT Result InvalidType(std::string_view type, std::string_view expected);

/// The members of a JSON object that a form knows, found in one walk over the object, or by one look-up each where most
/// of the object's members are others.
///
/// A value that is not an object has no members. A null member counts as absent.
///
/// Never throws; refers to the object that it was made from.
template <typename TForm>
class KnownMembers
{
    static constexpr KeyTable keys{keysOf<TForm>};

public:
    explicit KnownMembers(ValueView json) noexcept : document_(json.document_)
    {
        size_ = json.FindMembers(keys, members_.size(), members_.data());
    }

    /// What ValueView::IsEmptyObject says of the object.
    bool IsEmpty() const noexcept { return size_ == 0; }
    /// The number of all members, known or not.
    std::size_t Size() const noexcept { return size_; }

    /// A member of the form, for example Get<SpeedForm::numerator>(): when it is of the form's type its text, number or
    /// truth value, otherwise nothing; of the types that stand for more than one value a view, which is no value when
    /// the member is absent, null or of another type.
    /// Inlined in any case, since a small update then takes 2.8 % fewer instructions to merge.
    template <const FormMember<TForm>& member>
    [[gnu::always_inline]] auto Get() const noexcept
    {
        const ValueView value(members_[IndexOfListed<member>()], document_);
        if constexpr (member.type == JsonType::Text)
            return value.Text();
        else if constexpr (member.type == JsonType::Integer)
            return value.Int32();
        else if constexpr (member.type == JsonType::Boolean)
            return value.Boolean();
        else if constexpr (member.type == JsonType::Object)
            return value.IsObject() ? value : ValueView();
        else if constexpr (member.type == JsonType::Array)
            return value.IsArray() ? value : ValueView();
        else
            return value.IsNull() ? ValueView() : value;
    }

    /// The shape check that most readers begin with: fails with "<tag> is empty" for what has no members, and with
    /// "Invalid type X : <tag> expected" when "_type" is another text.
    Result CheckShape(const char* emptyMessage, std::string_view tag) const
    {
        return IsEmpty() ? Result(emptyMessage) : CheckType(tag);
    }
    Result CheckShape() const { return CheckShape(TForm::emptyMessage, TForm::tag); }

    /// The second half of that check. Success also when "_type" is no text or absent.
    Result CheckType(std::string_view tag) const
    {
        const auto type = Get<TForm::type>();
        return !type || *type == tag ? Result() : InvalidType(*type, tag);
    }

private:
    template <const FormMember<TForm>& member>
    static constexpr std::size_t IndexOfListed()
    {
        constexpr auto index = IndexOf(member);
        return index;
    }

    std::array<const void*, TForm::members.size()> members_{};
    const TextNodes* document_;
    std::size_t size_ = 0;
};

} // namespace Qiv::Common::Serialization::Json::Details
