// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemChannel.cpp Sends and receives without ever blocking in the call itself.
#include "platform/base/system/VelSystemChannel.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>
#include <vector>

#include "platform/base/system/VelSystemDeadline.h"
#include "platform/base/system/VelSystemError.h"

namespace {

constexpr const char* closedCause = "has closed the channel";

/// What goes along with a message. There is room for the one descriptor that a message may bring; the system closes
/// those that do not fit, and tells.
struct Attachment {
  alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> bytes{};

  void PutInto(msghdr& ioMessage, int iDescriptor) noexcept {
    ioMessage.msg_control = bytes.data();
    ioMessage.msg_controllen = CMSG_SPACE(sizeof(int));
    cmsghdr* head = CMSG_FIRSTHDR(&ioMessage);
    head->cmsg_level = SOL_SOCKET;
    head->cmsg_type = SCM_RIGHTS;
    head->cmsg_len = CMSG_LEN(sizeof(int));
    std::memcpy(CMSG_DATA(head), &iDescriptor, sizeof(int));
  }
};

/// Takes over every descriptor that came: alignment may leave room for more than one.
std::vector<VelSystemDescriptor> TakeDescriptors(msghdr& ioMessage) {
  std::vector<VelSystemDescriptor> descriptors;
  for (cmsghdr* head = CMSG_FIRSTHDR(&ioMessage); head != nullptr; head = CMSG_NXTHDR(&ioMessage, head)) {
    if (head->cmsg_level != SOL_SOCKET || head->cmsg_type != SCM_RIGHTS) continue;
    const std::size_t count = (head->cmsg_len - CMSG_LEN(0)) / sizeof(int);
    for (std::size_t i = 0; i < count; ++i) {
      int descriptor = -1;
      std::memcpy(&descriptor, CMSG_DATA(head) + i * sizeof(int), sizeof(int));
      descriptors.emplace_back(descriptor);
    }
  }
  return descriptors;
}

bool IsEnd(int iErrno) noexcept {
  return iErrno == EPIPE || iErrno == ECONNRESET || iErrno == ENOTCONN || iErrno == ECONNREFUSED;
}

bool IsSequencedPacketSocket(int iDescriptor) noexcept {
  int domain = 0;
  int type = 0;
  socklen_t size = sizeof(int);
  if (::getsockopt(iDescriptor, SOL_SOCKET, SO_DOMAIN, &domain, &size) != 0) return false;
  size = sizeof(int);
  return ::getsockopt(iDescriptor, SOL_SOCKET, SO_TYPE, &type, &size) == 0 && domain == AF_UNIX &&
         type == SOCK_SEQPACKET;
}

/// An empty message reads as an end does.
bool IsOtherEndClosed(int iDescriptor) noexcept {
  pollfd end{iDescriptor, POLLRDHUP, 0};
  return ::poll(&end, 1, 0) > 0;
}

/// @return S_OK; E_FAIL for a message that no honest end sends
HRESULT CheckReceived(const msghdr& iMessage, ssize_t iLength, std::size_t iDescriptorCount, std::string& oCause) {
  if ((iMessage.msg_flags & MSG_CTRUNC) != 0 || iDescriptorCount > 1) {
    oCause = "sent more descriptors than one, or than there is room for";
  } else if ((iMessage.msg_flags & MSG_TRUNC) != 0) {
    oCause = "sent a message of more than " + std::to_string(VelSystemChannel::largestMessage) + " bytes";
  } else if (iLength == 0) {
    oCause = "sent an empty message";
  } else {
    return S_OK;
  }
  return E_FAIL;
}

}  // namespace

HRESULT VelSystemChannel::CreatePair(VelSystemChannel& oOne, VelSystemChannel& oOther, std::string& oCause) {
  int ends[2] = {-1, -1};
  if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0) return VelSystemError::Fail(errno, oCause);
  const int room = static_cast<int>(largestMessage);
  for (const int end : ends) {
    // Where the system's own figure is smaller. The system takes what it can of this, and messages that it then finds
    // too long are refused one by one.
    static_cast<void>(::setsockopt(end, SOL_SOCKET, SO_SNDBUF, &room, sizeof(room)));
  }
  oOne = VelSystemChannel();
  oOne.descriptor_ = VelSystemDescriptor(ends[0]);
  oOther = VelSystemChannel();
  oOther.descriptor_ = VelSystemDescriptor(ends[1]);
  return S_OK;
}

HRESULT VelSystemChannel::Adopt(int iDescriptor, std::string& oCause) {
  VelSystemDescriptor taken(iDescriptor);
  *this = VelSystemChannel();
  if (!IsSequencedPacketSocket(iDescriptor)) {
    oCause = "is not a sequenced-packet socket";
    return E_FAIL;
  }
  if (::fcntl(iDescriptor, F_SETFD, FD_CLOEXEC) != 0) return VelSystemError::Fail(errno, oCause);
  descriptor_ = std::move(taken);
  return S_OK;
}

HRESULT VelSystemChannel::Fail(int iErrno, std::string& oCause) {
  // The system tells a reader by this error alone that the other end left messages unread.
  if (iErrno == ECONNRESET) hasLostMessages_ = true;
  if (!IsEnd(iErrno)) return VelSystemError::Fail(iErrno, oCause);
  oCause = closedCause;
  return E_UNEXPECTED;
}

HRESULT VelSystemChannel::Send(std::span<const std::byte> iHead, std::string_view iText, int iDescriptor,
                               int iTimeoutMilliseconds, std::string& oCause) {
  if (!IsOpen()) return Fail(ENOTCONN, oCause);
  // The system's record has no constant pointers, and is not written through.
  iovec parts[] = {{const_cast<std::byte*>(iHead.data()), iHead.size()},
                   {const_cast<char*>(iText.data()), iText.size()}};
  msghdr message{};
  message.msg_iov = parts;
  message.msg_iovlen = 2;
  Attachment attachment;
  if (iDescriptor >= 0) attachment.PutInto(message, iDescriptor);
  const VelSystemDeadline deadline(iTimeoutMilliseconds);
  while (::sendmsg(GetDescriptor(), &message, MSG_DONTWAIT | MSG_NOSIGNAL) < 0) {
    if (errno == EINTR) continue;
    if (errno != EAGAIN) return Fail(errno, oCause);
    const VelSystemDeadline::Outcome outcome = deadline.Await(GetDescriptor(), POLLOUT);
    if (outcome == VelSystemDeadline::Outcome::Failed) return Fail(errno, oCause);
    if (outcome == VelSystemDeadline::Outcome::Ready) continue;
    oCause = "did not read what was sent to it in time";
    return E_FAIL;
  }
  return S_OK;
}

HRESULT VelSystemChannel::Receive(std::string& oMessage, VelSystemDescriptor& oDescriptor, int iTimeoutMilliseconds,
                                  std::string& oCause) {
  oDescriptor = VelSystemDescriptor();
  if (!IsOpen()) return Fail(ENOTCONN, oCause);
  std::string bytes(largestMessage, '\0');
  iovec part{bytes.data(), bytes.size()};
  Attachment attachment;
  msghdr message{};
  message.msg_iov = &part;
  message.msg_iovlen = 1;
  const VelSystemDeadline deadline(iTimeoutMilliseconds);
  ssize_t length = -1;
  while (length < 0) {
    const VelSystemDeadline::Outcome outcome = deadline.Await(GetDescriptor(), POLLIN);
    if (outcome == VelSystemDeadline::Outcome::TimeIsOver) return S_FALSE;
    if (outcome == VelSystemDeadline::Outcome::Failed) return Fail(errno, oCause);
    message.msg_control = attachment.bytes.data();
    message.msg_controllen = attachment.bytes.size();
    length = ::recvmsg(GetDescriptor(), &message, MSG_DONTWAIT | MSG_CMSG_CLOEXEC);
    if (length < 0 && errno != EINTR && errno != EAGAIN) return Fail(errno, oCause);
  }
  std::vector<VelSystemDescriptor> descriptors = TakeDescriptors(message);
  if (length == 0 && descriptors.empty() && IsOtherEndClosed(GetDescriptor())) return Fail(EPIPE, oCause);
  VEL_RETURN_IF_FAILED(CheckReceived(message, length, descriptors.size(), oCause));
  bytes.resize(static_cast<std::size_t>(length));
  oMessage = std::move(bytes);
  if (!descriptors.empty()) oDescriptor = std::move(descriptors.front());
  return S_OK;
}
