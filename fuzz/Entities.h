#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/MetadataProfileDictionary.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Qiv/BusinessEntityModel/Edits/Sequence.h>
#include <Qiv/DataModel/MediaAssets/MediaAsset.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Boundary.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/SequenceOutput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Speed.h>
#include <Qiv/DataModel/Tarvonel/Nodes/Node.h>

#include <memory>

/// Entities to read into, and what of an entity survives being written and read again.
namespace Fuzz
{

using Qiv::BusinessEntityModel::BaseTypes::MetadataProfileDictionary;
using Qiv::BusinessEntityModel::BaseTypes::SharedReference;
using Qiv::BusinessEntityModel::Edits::Sequence;
using Qiv::DataModel::MediaAssets::MediaAsset;
using Qiv::DataModel::Tarvonel::MediaIOs::Boundary;
using Qiv::DataModel::Tarvonel::MediaIOs::MediaInput;
using Qiv::DataModel::Tarvonel::MediaIOs::MediaOutput;
using Qiv::DataModel::Tarvonel::MediaIOs::SequenceOutput;
using Qiv::DataModel::Tarvonel::MediaIOs::Speed;
using Qiv::DataModel::Tarvonel::Nodes::Node;
using Qiv::TimePoints::TimePoint;

// Overwrite every field with a value that is not its default and that survives.

void Fill(MediaInput& channel);
void Fill(MediaOutput& channel);
void Fill(SequenceOutput& sequence);
void Fill(SequenceOutput::AssetBlockOutput& block);
void Fill(std::unique_ptr<Boundary>& boundary);
void Fill(Speed& speed);
void Fill(Node& node);
void Fill(MetadataProfileDictionary& dictionary);
void Fill(SharedReference<MediaAsset>& reference);
void Fill(MediaAsset& asset);
void Fill(Sequence& sequence);
void Fill(TimePoint& point);

/// Makes of an entity what comes back when it is written and read into a new one. Not everything does:
/// - text ends at its first NUL, and ill-formed UTF-8 becomes U+FFFD;
/// - time codes without date, and those whose count of samples has wrapped around, have texts that nobody reads;
/// - a negative operator index is not written, nor are metadata names without a dot.
class Survival
{
public:
    /// True when something was lost that the text still shows, so that writing again gives another text.
    bool ChangesText() const noexcept { return changesText_; }

    void Apply(MediaInput& channel);
    void Apply(MediaOutput& channel);
    void Apply(SequenceOutput& sequence);
    void Apply(SequenceOutput::AssetBlockOutput& block);
    void Apply(std::unique_ptr<Boundary>&) noexcept {}
    void Apply(Speed&) noexcept {}
    void Apply(Node& node);
    void Apply(MetadataProfileDictionary& dictionary);
    template <typename T>
    void Apply(SharedReference<T>& reference);
    void Apply(MediaAsset& asset);
    void Apply(Sequence& sequence);
    void Apply(TimePoint&) noexcept {}

private:
    std::string Text(const std::string& text);
    Qiv::TimePoints::TimeCode TimeCode(const Qiv::TimePoints::TimeCode& timeCode);
    void ApplyToCommon(Qiv::DataModel::Tarvonel::MediaIOs::MediaIO& channel);

    bool changesText_ = false;
};

} // namespace Fuzz
