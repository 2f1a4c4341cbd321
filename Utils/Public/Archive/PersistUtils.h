#pragma once

#include <cstdint>

#include "Utils/Public/Archive/Persist.h"
#include "Utils/Public/Archive/PersistStandard.h"
#include "Utils/Public/BoolOpt.h"
#include "Utils/Public/Cinder.h"
#include "Utils/Public/FloatNumber.h"
#include "Utils/Public/TaggedEmpty.h"
#include "Utils/Public/TaggedValue.h"

/// The small value types.

namespace QN {

/// An object with the one key "_value".
template <class T, class Tag>
struct Persist<TaggedValue<T, Tag>> {
    static void save(cereal::JSONOutputArchive& archive, const TaggedValue<T, Tag>& value)
    {
        archive.startObject();
        archive.member("_value", value.get());
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, TaggedValue<T, Tag>& value)
    {
        archive.enterObject();
        archive.member("_value", value.get());
        archive.leave();
    }
};

template <class Tag>
struct Persist<TaggedEmpty<Tag>> {
    static void save(cereal::JSONOutputArchive& archive, const TaggedEmpty<Tag>& /*value*/)
    {
        archive.startObject();
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, TaggedEmpty<Tag>& /*value*/)
    {
        archive.enterObject();
        archive.leave();
    }
};

/// An object with the one key "value": 1 for true, 0 for false, -1 for unset. Any other integer reads as unset,
/// but one beyond 64 bits, which raises as a number with a fraction does.
template <>
struct Persist<BoolOpt> {
    static void save(cereal::JSONOutputArchive& archive, const BoolOpt& value)
    {
        archive.startObject();
        archive.member("value", !value ? -1 : *value ? 1 : 0);
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, BoolOpt& value)
    {
        value = boost::none;
        archive.enterObject();
        archive.seek("value");
        std::int32_t state = -1;
        if (!archive.isWideInteger()) {
            archive.loadValue(state);
        }
        if (state == 0 || state == 1) {
            value = state == 1;
        }
        archive.leave();
    }
};

/// A plain number.
template <>
struct Persist<FloatNumber> {
    static void save(cereal::JSONOutputArchive& archive, const FloatNumber& value)
    {
        archive.saveValue(value.get());
    }

    static void load(cereal::JSONInputArchive& archive, FloatNumber& value)
    {
        double number = 0;
        archive.loadValue(number);
        value = FloatNumber(number);
    }
};

/// The channels as unnamed values.
template <class T>
struct Persist<cinder::ColorT<T>> {
    static void save(cereal::JSONOutputArchive& archive, const cinder::ColorT<T>& value)
    {
        archive.startObject();
        archive(value.r, value.g, value.b);
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, cinder::ColorT<T>& value)
    {
        archive.enterObject();
        archive(value.r, value.g, value.b);
        archive.leave();
    }
};

template <class T>
struct Persist<cinder::ColorAT<T>> {
    static void save(cereal::JSONOutputArchive& archive, const cinder::ColorAT<T>& value)
    {
        archive.startObject();
        archive(value.r, value.g, value.b, value.a);
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, cinder::ColorAT<T>& value)
    {
        archive.enterObject();
        archive(value.r, value.g, value.b, value.a);
        archive.leave();
    }
};

/// The coordinates under their names.
template <class T>
struct Persist<cinder::Vec2<T>> {
    static void save(cereal::JSONOutputArchive& archive, const cinder::Vec2<T>& value)
    {
        archive.startObject();
        archive.member("x", value.x);
        archive.member("y", value.y);
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, cinder::Vec2<T>& value)
    {
        archive.enterObject();
        archive.member("x", value.x);
        archive.member("y", value.y);
        archive.leave();
    }
};

template <class T>
struct Persist<cinder::Vec3<T>> {
    static void save(cereal::JSONOutputArchive& archive, const cinder::Vec3<T>& value)
    {
        archive.startObject();
        archive.member("x", value.x);
        archive.member("y", value.y);
        archive.member("z", value.z);
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, cinder::Vec3<T>& value)
    {
        archive.enterObject();
        archive.member("x", value.x);
        archive.member("y", value.y);
        archive.member("z", value.z);
        archive.leave();
    }
};

/// An object with the keys "_points" and "_closed".
template <class Point>
struct Persist<cinder::PolyLine<Point>> {
    static void save(cereal::JSONOutputArchive& archive, const cinder::PolyLine<Point>& value)
    {
        archive.startObject();
        archive.member("_points", value.getPoints());
        archive.member("_closed", value.isClosed());
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, cinder::PolyLine<Point>& value)
    {
        bool isClosed = false;
        archive.enterObject();
        archive.member("_points", value.getPoints());
        archive.member("_closed", isClosed);
        archive.leave();
        value.setClosed(isClosed);
    }
};

} // namespace QN
