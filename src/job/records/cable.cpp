#include "cable.h"

bool Cable::hasResponseData() const
{
    const cabledoc::TestResultsFields &results = m_fields.testResults.fields();
    return results.next.count == TRUEPHY_PLOT_DATA::sampleCount || results.echo.count == TRUEPHY_PLOT_DATA::sampleCount
           || results.channel.count == TRUEPHY_PLOT_DATA::sampleCount;
}
