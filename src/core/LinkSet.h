/// The multiply-linked files that a measure has met: a set of device and inode in few bytes.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <set>
#include <utility>
#include <vector>

/// An open-addressing table of the inodes of one device, at most 3/4 full, as a walk stays on one device; what lies on
/// another one (a file that is mounted over another) goes into an ordinary set. Takes no memory until it is used.
class LinkSet {
 public:
  explicit LinkSet(dev_t device) : m_device(device) {}

  /// False if the file was there already. @p inode isn't 0.
  bool insert(dev_t device, ino_t inode) {
    if (device != m_device) return m_others.emplace(device, inode).second;
    if (m_count * 4 >= m_slots.size() * 3) grow();
    if (!place(inode)) return false;
    ++m_count;
    return true;
  }

 private:
  bool place(uint64_t inode) {
    const size_t mask = m_slots.size() - 1;
    // Inodes come in runs; a multiplication by 2^64 over the golden ratio spreads them.
    for (size_t i = (inode * 0x9e3779b97f4a7c15U) >> 32 & mask;; i = (i + 1) & mask) {
      if (m_slots[i] == inode) return false;
      if (m_slots[i] != 0) continue;
      m_slots[i] = inode;
      return true;
    }
  }

  void grow() {
    std::vector<uint64_t> old(m_slots.empty() ? 64 : m_slots.size() * 2);
    old.swap(m_slots);
    for (const uint64_t inode : old)
      if (inode != 0) place(inode);
  }

  dev_t m_device;
  size_t m_count = 0;
  std::vector<uint64_t> m_slots; ///< a power of two of them, 0 where free
  std::set<std::pair<dev_t, ino_t>> m_others;
};
