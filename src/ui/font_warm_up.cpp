#include "font_warm_up.h"

#include <system_error>

#ifdef QUILMAR_HAVE_FONTCONFIG
#include <fontconfig/fontconfig.h>
#endif

namespace quilmar {

FontWarmUp::FontWarmUp()
{
#ifdef QUILMAR_HAVE_FONTCONFIG
    try {
        // FcInit keeps what it read as the library's current configuration,
        // the one Qt's own FcInit call then finds.
        m_thread = std::thread([] { FcInit(); });
    } catch (const std::system_error &) {
        // No thread to be had: Qt reads the configuration itself, as always.
    }
#endif
}

FontWarmUp::~FontWarmUp()
{
    wait();
}

void FontWarmUp::wait()
{
    if (m_thread.joinable())
        m_thread.join();
}

} // namespace quilmar
