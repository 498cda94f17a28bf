// The names by which the decoder calls our own image plugins. Their .json files repeat them, since the image
// library reads those without loading the plugin.
#pragma once

namespace vantor::decode {

inline constexpr char kRawFormat[] = "vantor-raw";
inline constexpr char kHeifFormat[] = "vantor-heif";
inline constexpr char kJpegXlFormat[] = "vantor-jxl";
inline constexpr char kJpegXrFormat[] = "vantor-jxr";
inline constexpr char kJpeg2000Format[] = "vantor-jp2";
inline constexpr char kPhotoshopFormat[] = "vantor-psd";
inline constexpr char kRadianceFormat[] = "vantor-hdr";
inline constexpr char kFloatMapFormat[] = "vantor-pfm";
inline constexpr char kPcxFormat[] = "vantor-pcx";
inline constexpr char kDdsFormat[] = "vantor-dds";
inline constexpr char kDpxFormat[] = "vantor-dpx";
inline constexpr char kOpenExrFormat[] = "vantor-exr";
inline constexpr char kQoiFormat[] = "vantor-qoi";
inline constexpr char kSgiFormat[] = "vantor-sgi";
inline constexpr char kSunRasterFormat[] = "vantor-ras";
inline constexpr char kPamFormat[] = "vantor-pam";
inline constexpr char kTargaFormat[] = "vantor-tga";
inline constexpr char kFitsFormat[] = "vantor-fits";

}  // namespace vantor::decode
