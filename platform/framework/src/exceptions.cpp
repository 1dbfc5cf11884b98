#include "tavlon/framework/exceptions.h"

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CResourceException, CException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CException)

void AfxThrowResourceException() { throw new CResourceException; }
void AfxThrowInvalidArgException() { throw new CInvalidArgException; }
void AfxThrowMemoryException() { throw new CMemoryException; }
