# Run inside the mock of BlueZ by low_energy_test.cpp, with PATH and SERVED set. The device's objects come with its
# connection. What is written is kept and not answered; a write that BlueZ would not send whole is refused, and so is
# one beside another.
import socket, threading
device, mtu, written, kinds, notify = objects[PATH], 23, b'', set(), None
DEVICE, GATT = 'org.bluez.Device1', 'org.bluez.Gatt'
CLASSIC = '00001101-0000-1000-8000-00805f9b34fb'
YES, NO = dbus.Boolean(True), dbus.Boolean(False)

def add(path, interface, properties, methods):
    if path in objects:
        return
    device.AddObject(path, interface, properties, methods)
    objects['/'].EmitSignal('org.freedesktop.DBus.ObjectManager', 'InterfacesAdded', 'oa{sa{sv}}',
                            [dbus.ObjectPath(path), {interface: properties}])

def acquire():
    global notify
    notify, theirs = socket.socketpair(socket.AF_UNIX, socket.SOCK_SEQPACKET)
    return dbus.types.UnixFd(theirs), dbus.UInt16(mtu)

def write(value, options):
    global written
    if len(value) > mtu - 3:
        raise dbus.exceptions.DBusException('Failed to initiate write', name='org.bluez.Error.Failed')
    kinds.add(str(options['type']))
    written += bytes(value)

def serve():
    device.UpdateProperties(DEVICE, {'Connected': YES})
    services = []
    for service, one, flags in SERVED:
        if service not in services:
            services.append(service)
        base = PATH + '/service%d' % services.index(service)
        add(base, GATT + 'Service1', {'UUID': service}, [])
        add(base + '/char' + one[4:8], GATT + 'Characteristic1',
            {'UUID': one, 'Service': dbus.ObjectPath(base), 'Flags': dbus.Array(flags, 's')},
            [('AcquireNotify', 'a{sv}', 'hq', 'ret = acquire()'), ('WriteValue', 'aya{sv}', '', 'write(*args)')])
    device.UpdateProperties(DEVICE, {'ServicesResolved': YES})

def remove():
    for path in [path for path in objects if path.startswith(PATH + '/')]:
        objects['/'].EmitSignal('org.freedesktop.DBus.ObjectManager', 'InterfacesRemoved', 'oas',
                                [dbus.ObjectPath(path), [objects[path].interface]])
        device.RemoveObject(path)

def drop():
    notify.close()
    device.UpdateProperties(DEVICE, {'Connected': NO, 'ServicesResolved': NO})

remove()
device.AddMethod(DEVICE, 'Connect', '', '', 'serve()')
device.AddMethod(DEVICE, 'Disconnect', '', '', "device.UpdateProperties(DEVICE, {'Connected': NO, 'ServicesResolved': NO})")
