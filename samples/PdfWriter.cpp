// A PDF page with a drawing and a photo.
#include <vector>

#include "samples/Documents.h"
#include "samples/JpegEncoder.h"

namespace vantor::samples {

namespace {

QByteArray stream(const QByteArray& dictionary, const QByteArray& data) {
    return "<< " + dictionary + " /Length " + QByteArray::number(data.size()) + " >>\nstream\n" + data +
           "\nendstream";
}

QByteArray pageContent() {
    QByteArray content = "q 0.16 0.36 0.62 rg 0 742 595 100 re f Q\n";
    content += "BT /F1 28 Tf 1 1 1 rg 56 782 Td (Holiday 2024) Tj ET\n";
    content += "q 480 0 0 360 57 350 cm /Photo Do Q\n";
    content +=
        "BT /F1 12 Tf 0.2 0.2 0.2 rg 57 322 Td (A page with a photo, some text and a drawing.) Tj ET\n";
    for (int i = 0; i < 12; ++i) {
        content += "q 0." + QByteArray::number(25 + i * 6) + " 0.4 0." + QByteArray::number(90 - i * 6) +
                   " rg " + QByteArray::number(57 + i * 40) + " 120 32 " +
                   QByteArray::number(20 + (i * 37) % 130) + " re f Q\n";
    }
    return content;
}

}  // namespace

QByteArray pdfFile(const Picture& photo) {
    const QByteArray size =
        "/Width " + QByteArray::number(photo.width) + " /Height " + QByteArray::number(photo.height);
    const std::vector<QByteArray> objects = {
        "<< /Type /Catalog /Pages 2 0 R >>",
        "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents 4 0 R /Resources << /Font << /F1 5 0 "
        "R >> "
        "/XObject << /Photo 6 0 R >> >> >>",
        stream({}, pageContent()),
        "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
        stream("/Type /XObject /Subtype /Image " + size +
                   " /ColorSpace /DeviceRGB /BitsPerComponent 8 /Filter /DCTDecode",
               encodeJpeg(photo, {})),
    };
    QByteArray out = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";
    QByteArray table = "0000000000 65535 f \n";
    for (std::size_t i = 0; i < objects.size(); ++i) {
        table += QByteArray::number(out.size()).rightJustified(10, '0') + " 00000 n \n";
        out += QByteArray::number(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const QByteArray count = QByteArray::number(objects.size() + 1);
    const QByteArray tableAt = QByteArray::number(out.size());
    return out + "xref\n0 " + count + "\n" + table + "trailer\n<< /Size " + count +
           " /Root 1 0 R >>\nstartxref\n" + tableAt + "\n%%EOF\n";
}

}  // namespace vantor::samples
