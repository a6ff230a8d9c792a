#include "data/ownconnection.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

OwnConnection::OwnConnection(Engine::Database &other)
    : m_session(u"SessionBeside"_s, other.session().stores())
    , m_database(m_session, other.name())
{
    other.connection(); // settles where it is
    const Engine::Session &session = other.session();
    m_session.type = session.type;
    m_session.privateDirectory = session.privateDirectory;
    m_session.remoteAddress = session.remoteAddress;
    m_session.remoteLink = session.remoteLink;
    m_session.remoteUser = session.remoteUser;
    m_session.remotePassword = session.remotePassword;
    m_session.readsFromStandby = session.readsFromStandby;
    m_session.standbyWait = session.standbyWait;
    m_session.applicationUser = session.applicationUser;
    m_session.tableTitle = session.tableTitle;
    m_session.clock = session.clock;
    m_database.directory = other.directory;
    m_database.remoteName = other.remoteName;
}

} // namespace Tallymere
