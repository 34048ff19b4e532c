#pragma once

#include <Qiv/Common/Serialization/Json/FromJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Nodes/Node.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>

namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json
{

/// Reads a server machine:
///
///     {"_type":"Node","id":"n1","serialNumber":12345,"hostName":"srv1","ipAddress":"10.0.0.1",
///      "gbeIpAddresses":["10.0.1.1"],"chassis":"6U","hardwareRevision":"B2","tarvonelVersion":"1.2.3"}
///
/// Only "id" is required. Unlike the other readers this one replaces the whole target: a member that is absent or of
/// another type gives the field its default (serial number -1, empty text, empty list). Elements of "gbeIpAddresses"
/// that are no strings are left out.
///
/// Failures, which leave the target unchanged: "Node is null" for null, a value that is no object, and an object
/// without members; "Invalid type X : Node expected"; "Node has no identifier (required)".
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT JsonToNodeConverter
    : public Common::Serialization::Json::FromJsonConverter<Tarvonel::Nodes::Node>
{
public:
    ~JsonToNodeConverter() override;

    using FromJsonConverter::To;
    Common::Serialization::Result To(const Common::Serialization::Json::JsonObject& json,
                                     Tarvonel::Nodes::Node& node) const override;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json
