// A picture of a window in a PNG file.
#pragma once

#include <memory>
#include <string>

class QFileDevice;
class QSaveFile;
class QString;
class QTemporaryFile;
class QWidget;

namespace editor
{

// Sees at once that the file can be written, so that nobody waits in vain. A file that is there is replaced when
// the picture is whole, and not before.
class Screenshot
{
public:
    // Empty: a new file among the user's temporary ones, which nobody else can guess or read.
    explicit Screenshot(const std::string& path);
    ~Screenshot(); // leaves no file behind that was not written
    Screenshot(const Screenshot&) = delete;
    Screenshot& operator=(const Screenshot&) = delete;

    const std::string& GetPath() const { return m_path; }
    const std::string& GetError() const { return m_error; } // one line that names the file; empty: none

    bool Write(QWidget& window); // FALSE: GetError tells why

private:
    QFileDevice& File();
    bool Keep();
    bool Fail(const QString& reason); // FALSE

    std::string m_path, m_error;
    std::unique_ptr<QSaveFile> m_pNamed;
    std::unique_ptr<QTemporaryFile> m_pTemporary; // without a name
};

} // namespace editor
