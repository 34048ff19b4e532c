#pragma once

#include <Qiv/DataModel/Tarvonel/MediaIOs/Boundary.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>

#include <memory>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

/// Reads an in or out point and makes the boundary of the kind that "_type" names:
///
///     {"_type":"BoundaryAbsolute","timepoint":{time point}}
///     {"_type":"BoundaryRelative","origin":"RelativeToOppositeMediaBoundary","offset":-25}
///
/// "timepoint" is optional, any other value than null is handed to the time point reader. "origin" and "offset" are
/// optional, with the defaults `RelativeToCorrespondingMediaBoundary` and 0; a value of another type is skipped.
///
/// Failures: "Boundary is empty" and "Invalid _type" leave the target untouched; after a failure of the time point
/// reader, returned unchanged, the target holds a new absolute boundary at the empty time point.
///
/// **Ends the process** (`std::terminate`) when the "origin" of a relative boundary is the text "Absolute". That is
/// kept for the callers that rely on it; check a document from outside before you read it. An unknown text is harmless.
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT JsonToBoundaryConverter
    : public FromJsonConverter<std::unique_ptr<Tarvonel::MediaIOs::Boundary>>
{
public:
    ~JsonToBoundaryConverter() override;

    using FromJsonConverter::To;
    Result To(const JsonObject& json, std::unique_ptr<Tarvonel::MediaIOs::Boundary>& boundary) const noexcept override;

    /// The same without the test for an empty value, so that an empty one fails with "Invalid _type".
    Result Append(const JsonObject& json, std::unique_ptr<Tarvonel::MediaIOs::Boundary>& boundary) const noexcept;

    /// Makes a boundary of one kind from the members of `json`, whatever its "_type".
    Result AppendBoundaryAbsolute(const JsonObject& json,
                                  std::unique_ptr<Tarvonel::MediaIOs::Boundary>& boundary) const noexcept;
    Result AppendBoundaryRelative(const JsonObject& json,
                                  std::unique_ptr<Tarvonel::MediaIOs::Boundary>& boundary) const noexcept;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
