#include "testdetails.h"

bool cabledoc::CableTest::isEmpty() const
{
    const TestResultsFields &fields = results.fields();
    return fields.status == TestResultsFields().status && fields.bertErrors == TestResultsFields().bertErrors
           && isUntested(fields.results) && fields.next.count == 0 && fields.echo.count == 0
           && fields.channel.count == 0 && details == TestDetails();
}
