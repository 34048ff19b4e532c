#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/MetadataProfileDictionary.h>
#include <Qiv/Common/Serialization/Json/Details/ValueView.h>
#include <Qiv/Common/Serialization/Result.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Boundary.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/SequenceOutput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Speed.h>

#include <memory>

/// The readers' work, each in the source of its entity: what the `To` of the converter does, and where it says so
/// its `Append`. Unlike a converter's operation that is declared not to throw, each of these may: `std::bad_alloc`,
/// `std::bad_cast` as JsonToMetadataProfileDictionaryConverter says, and for the two inputs that end the process
/// there the exception that does it.
namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using Common::Serialization::Result;
using Common::Serialization::Json::Details::ValueView;

// ReadMediaIO.cpp
Result ReadMediaIO(ValueView json, Tarvonel::MediaIOs::MediaIO& channel);
Result AppendCommonMembers(ValueView json, Tarvonel::MediaIOs::MediaIO& channel);

// ReadMediaInput.cpp
Result ReadMediaInput(ValueView json, Tarvonel::MediaIOs::MediaInput& channel);
Result AppendRecorderMembers(ValueView json, Tarvonel::MediaIOs::MediaInput& channel);

// ReadMediaOutput.cpp
Result ReadMediaOutput(ValueView json, Tarvonel::MediaIOs::MediaOutput& channel);
Result AppendPlayerMembers(ValueView json, Tarvonel::MediaIOs::MediaOutput& channel);

// ReadSpeed.cpp
Result ReadSpeed(ValueView json, Tarvonel::MediaIOs::Speed& speed);

// ReadBoundary.cpp
Result ReadBoundary(ValueView json, std::unique_ptr<Tarvonel::MediaIOs::Boundary>& boundary);
Result AppendBoundary(ValueView json, std::unique_ptr<Tarvonel::MediaIOs::Boundary>& boundary);
Result AppendBoundaryAbsolute(ValueView json, std::unique_ptr<Tarvonel::MediaIOs::Boundary>& boundary);
Result AppendBoundaryRelative(ValueView json, std::unique_ptr<Tarvonel::MediaIOs::Boundary>& boundary);

// ReadSequenceOutput.cpp
Result ReadSequenceOutput(ValueView json, Tarvonel::MediaIOs::SequenceOutput& sequenceOutput);
Result ReadAssetBlock(ValueView json, Tarvonel::MediaIOs::SequenceOutput::AssetBlockOutput& assetBlock);

// ReadMetadata.cpp
Result ReadMetadata(ValueView json, BusinessEntityModel::BaseTypes::MetadataProfileDictionary& dictionary);
Result ReadOperatorProfile(ValueView json, Tarvonel::MediaIOs::PelOperatorMetadataProfile& profile);

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
